// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Play/PlayTokens.h"

static bool IsBlank(TCHAR Character)
{
	return Character == TEXT(' ') || Character == TEXT('\t');
}

static bool EndsWord(TCHAR Character)
{
	return IsBlank(Character) || Character == TEXT('"') || Character == TEXT('#');
}

static TOptional<TCHAR> Unescape(TCHAR Character)
{
	switch (Character)
	{
	case TEXT('n'):
		return TEXT('\n');
	case TEXT('t'):
		return TEXT('\t');
	case TEXT('"'):
	case TEXT('\\'):
		return Character;
	default:
		return NullOpt;
	}
}

// Takes the text behind its opening quote from Rest, with the closing quote.
static bool ReadQuoted(FStringView& Rest, FString& OutText, FString& OutError)
{
	for (int32 Index = 0; Index < Rest.Len(); ++Index)
	{
		if (Rest[Index] == TEXT('"'))
		{
			Rest.RemovePrefix(Index + 1);
			return true;
		}
		if (Rest[Index] != TEXT('\\'))
		{
			OutText += Rest[Index];
			continue;
		}
		const FStringView Escaped = Rest.Mid(++Index, 1);
		const TOptional<TCHAR> Character = Escaped.IsEmpty() ? NullOpt : Unescape(Escaped[0]);
		if (!Character)
		{
			OutError = FString::Printf(TEXT("\\%s stands for nothing; there are \\n, \\t, \\\" and \\\\"), *FString(Escaped));
			return false;
		}
		OutText += *Character;
	}
	OutError = TEXT("a text has no closing quote");
	return false;
}

static FString ReadWord(FStringView& Rest)
{
	int32 Length = 1;
	while (Length < Rest.Len() && !EndsWord(Rest[Length]))
	{
		++Length;
	}
	const FString Word(Rest.Left(Length));
	Rest.RemovePrefix(Length);
	return Word;
}

bool ReadPlayTokens(FStringView Line, TArray<FPlayToken>& OutTokens, FString& OutError)
{
	FStringView Rest = Line;
	while (!Rest.IsEmpty() && Rest[0] != TEXT('#'))
	{
		if (IsBlank(Rest[0]))
		{
			Rest.RemovePrefix(1);
			continue;
		}
		FPlayToken Token;
		Token.bQuoted = Rest[0] == TEXT('"');
		if (!Token.bQuoted)
		{
			Token.Text = ReadWord(Rest);
		}
		else if (Rest.RemovePrefix(1); !ReadQuoted(Rest, Token.Text, OutError))
		{
			return false;
		}
		OutTokens.Add(MoveTemp(Token));
	}
	return true;
}
