// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "SyntaxMatcher.h"

#include "Containers/StringView.h"

#include <unicode/uchar.h>
#include <unicode/utf16.h>

namespace
{
bool EndsWithWord(FStringView Rule)
{
	int32 Last = Rule.Len() - 1;
	if (Last > 0 && U16_IS_TRAIL(Rule[Last]) && U16_IS_LEAD(Rule[Last - 1]))
	{
		--Last;
	}
	return FSyntaxMatcher::ReadWordCharacter(Rule, Last);
}
} // namespace

FSyntaxMatcher::FSyntaxMatcher(const TArray<FSyntaxTokenizer::FRule>& Rules)
{
	for (const FSyntaxTokenizer::FRule& Rule : Rules)
	{
		AddColumns(Rule.MatchText);
	}
	NextStates.Init(0, NumColumns);
	StateKinds.Add(EStateKind::Beginning);
	for (const FSyntaxTokenizer::FRule& Rule : Rules)
	{
		AddStates(Rule.MatchText);
	}
}

void FSyntaxMatcher::AddColumns(FStringView Rule)
{
	for (const TCHAR Character : Rule)
	{
		if (FindColumn(Character) == 0)
		{
			int32& Column = Character < NumAscii ? AsciiColumns[Character] : OtherColumns.FindOrAdd(Character);
			Column = NumColumns++;
		}
	}
}

void FSyntaxMatcher::AddStates(FStringView Rule)
{
	if (Rule.IsEmpty())
	{
		return;
	}
	int32 State = 0;
	for (const TCHAR Character : Rule)
	{
		const int32 Cell = State * NumColumns + FindColumn(Character);
		if (NextStates[Cell] == 0)
		{
			NextStates[Cell] = StateKinds.Add(EStateKind::Beginning);
			NextStates.SetNum(StateKinds.Num() * NumColumns);
		}
		State = NextStates[Cell];
	}
	StateKinds[State] = EndsWithWord(Rule) ? EStateKind::WordRule : EStateKind::Rule;
}

int32 FSyntaxMatcher::FindColumn(TCHAR Character) const
{
	if (Character < NumAscii)
	{
		return AsciiColumns[Character];
	}
	const int32* Column = OtherColumns.IsEmpty() ? nullptr : OtherColumns.Find(Character);
	return Column ? *Column : 0;
}

int32 FSyntaxMatcher::Match(FStringView Text, int32 Begin) const
{
	int32 Longest = INDEX_NONE;
	int32 State = 0;
	for (int32 Index = Begin; Index < Text.Len(); ++Index)
	{
		State = NextStates[State * NumColumns + FindColumn(Text[Index])];
		if (State == 0)
		{
			break;
		}
		Longest = IsMatch(StateKinds[State], Text, Index + 1) ? Index + 1 : Longest;
	}
	return Longest;
}

bool FSyntaxMatcher::IsMatch(EStateKind Kind, FStringView Text, int32 End) const
{
	if (Kind == EStateKind::WordRule && End < Text.Len())
	{
		return !ReadWordCharacter(Text, End);
	}
	return Kind != EStateKind::Beginning;
}

bool FSyntaxMatcher::ReadWordCharacter(FStringView Text, int32& Index)
{
	const TCHAR First = Text[Index];
	if (First < NumAscii)
	{
		++Index;
		return First == TEXT('_') || (First >= TEXT('0') && First <= TEXT('9')) ||
			   ((First | 0x20) >= TEXT('a') && (First | 0x20) <= TEXT('z'));
	}
	UChar32 Character = 0;
	U16_NEXT(Text.GetData(), Index, Text.Len(), Character);
	return u_hasBinaryProperty(Character, UCHAR_XID_CONTINUE);
}
