// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Text/RichTextMarkupProcessing.h"

#include "Containers/StringView.h"
#include "TextLines.h"

#include <algorithm>

namespace
{
constexpr FStringView CloseTag = TEXTVIEW("</>");

struct FCharacterReference
{
	FStringView Name;
	TCHAR Character;
};

constexpr FCharacterReference CharacterReferences[] = {
	{TEXTVIEW("&amp;"), TEXT('&')}, {TEXTVIEW("&lt;"), TEXT('<')}, {TEXTVIEW("&gt;"), TEXT('>')}, {TEXTVIEW("&quot;"), TEXT('"')}};

bool IsNameCharacter(TCHAR Character)
{
	const TCHAR Lower = Character | 0x20;
	return (Lower >= TEXT('a') && Lower <= TEXT('z')) || (Character >= TEXT('0') && Character <= TEXT('9')) || Character == TEXT('.') ||
		   Character == TEXT('_') || Character == TEXT('-');
}

bool IsBlank(TCHAR Character)
{
	return Character == TEXT(' ') || Character == TEXT('\t');
}

/** An opening tag in the input; ranges are into the input. */
struct FOpenTag
{
	struct FAttribute
	{
		FTextRange Name;
		FTextRange Value;
	};

	FTextRange Name;
	TArray<FAttribute> Attributes;
	int32 End = 0;
};

/** Reads one opening tag. What it reads is not yet a run: the line may lack the closing one. */
class FTagReader
{
public:
	FTagReader(FStringView InText, int32 Begin)
		: Text(InText)
		, At(Begin + 1)
	{
	}

	bool Read(FOpenTag& OutTag)
	{
		OutTag.Attributes.Reset();
		if (!ReadName(OutTag.Name))
		{
			return false;
		}
		while (SkipBlanks() && !IsAt(TEXT('>')))
		{
			FOpenTag::FAttribute& Attribute = OutTag.Attributes.AddDefaulted_GetRef();
			if (!ReadName(Attribute.Name) || !Skip(TEXT('=')) || !ReadValue(Attribute.Value))
			{
				return false;
			}
		}
		OutTag.End = At + 1;
		return IsAt(TEXT('>'));
	}

private:
	bool IsAt(TCHAR Character) const { return At < Text.Len() && Text[At] == Character; }

	bool Skip(TCHAR Character)
	{
		const bool bSkipped = IsAt(Character);
		At += bSkipped ? 1 : 0;
		return bSkipped;
	}

	bool SkipBlanks()
	{
		const int32 Begin = At;
		while (At < Text.Len() && IsBlank(Text[At]))
		{
			++At;
		}
		return At > Begin;
	}

	bool ReadName(FTextRange& OutName)
	{
		OutName.BeginIndex = At;
		while (At < Text.Len() && IsNameCharacter(Text[At]))
		{
			++At;
		}
		OutName.EndIndex = At;
		return !OutName.IsEmpty();
	}

	bool ReadValue(FTextRange& OutValue)
	{
		if (!Skip(TEXT('"')))
		{
			return false;
		}
		OutValue.BeginIndex = At;
		At = static_cast<int32>(std::find(Text.begin() + At, Text.end(), TEXT('"')) - Text.begin());
		OutValue.EndIndex = At;
		return Skip(TEXT('"'));
	}

	FStringView Text;
	int32 At;
};

class FMarkupReader
{
public:
	FMarkupReader(TArray<FTextLineParseResults>& InResults, FStringView InInput, FString& InOutput)
		: Results(InResults)
		, Input(InInput)
		, Output(InOutput)
	{
	}

	void Read()
	{
		Output.Reserve(Input.Len());
		FTextRange Line;
		for (int32 Begin = 0; Begin != INDEX_NONE;)
		{
			Begin = TextLines::FindLine(Input, Begin, Line);
			ReadLine(Input.Mid(Line.BeginIndex, Line.Len()));
			if (Begin != INDEX_NONE)
			{
				Output.AppendChar(TEXT('\n'));
			}
		}
	}

private:
	void ReadLine(FStringView Line)
	{
		FTextLineParseResults& Result = Results.AddDefaulted_GetRef();
		Result.Range.BeginIndex = Output.Len();
		int32 PlainBegin = 0;
		// Behind the last closing tag no run can end any more.
		const int32 LastClose = Line.FindLast(CloseTag);
		for (int32 At = FindOpen(Line, 0); At < LastClose; At = FindOpen(Line, FMath::Max(At + 1, PlainBegin)))
		{
			if (FTagReader(Line, At).Read(Tag) && Tag.End <= LastClose)
			{
				AddPlain(Result, Line.Mid(PlainBegin, At - PlainBegin));
				PlainBegin = AddRun(Result, Line, At);
			}
		}
		AddPlain(Result, Line.Mid(PlainBegin));
		Result.Range.EndIndex = Output.Len();
	}

	static int32 FindOpen(FStringView Line, int32 From)
	{
		return static_cast<int32>(std::find(Line.begin() + From, Line.end(), TEXT('<')) - Line.begin());
	}

	void AddPlain(FTextLineParseResults& Result, FStringView Text)
	{
		if (!Text.IsEmpty())
		{
			Result.Runs.Emplace(AppendResolved(Text));
		}
	}

	/** Returns where the run ends in the line. */
	int32 AddRun(FTextLineParseResults& Result, FStringView Line, int32 Begin)
	{
		const int32 Close = Line.Find(CloseTag, Tag.End);
		const int32 OutputBegin = Output.Len();
		TMap<FString, FTextRange> MetaData = AppendTag(Line, Begin);
		const FTextRange Content = AppendResolved(Line.Mid(Tag.End, Close - Tag.End));
		Output.Append(CloseTag);
		FTextRunParseResults& Run = Result.Runs.Emplace_GetRef(
			FString(Line.Mid(Tag.Name.BeginIndex, Tag.Name.Len())), FTextRange(OutputBegin, Output.Len()), Content);
		Run.MetaData = MoveTemp(MetaData);
		return Close + CloseTag.Len();
	}

	TMap<FString, FTextRange> AppendTag(FStringView Line, int32 Begin)
	{
		TMap<FString, FTextRange> MetaData;
		int32 At = Begin;
		for (const FOpenTag::FAttribute& Attribute : Tag.Attributes)
		{
			Output.Append(Line.Mid(At, Attribute.Value.BeginIndex - At));
			const FString Name(Line.Mid(Attribute.Name.BeginIndex, Attribute.Name.Len()));
			MetaData.Add(Name, AppendResolved(Line.Mid(Attribute.Value.BeginIndex, Attribute.Value.Len())));
			At = Attribute.Value.EndIndex;
		}
		Output.Append(Line.Mid(At, Tag.End - At));
		return MetaData;
	}

	FTextRange AppendResolved(FStringView Text)
	{
		const int32 Begin = Output.Len();
		while (!Text.IsEmpty())
		{
			const int32 Ampersand = static_cast<int32>(std::find(Text.begin(), Text.end(), TEXT('&')) - Text.begin());
			Output.Append(Text.Left(Ampersand));
			Text.RemovePrefix(Ampersand);
			Text.RemovePrefix(AppendReference(Text));
		}
		return FTextRange(Begin, Output.Len());
	}

	/** `Text` begins with an ampersand, or is empty. Returns how much of it was taken. */
	int32 AppendReference(FStringView Text)
	{
		for (const FCharacterReference& Reference : CharacterReferences)
		{
			if (Text.StartsWith(Reference.Name, ESearchCase::CaseSensitive))
			{
				Output.AppendChar(Reference.Character);
				return Reference.Name.Len();
			}
		}
		Output.Append(Text.Left(1));
		return FMath::Min(Text.Len(), 1);
	}

	TArray<FTextLineParseResults>& Results;
	FStringView Input;
	FString& Output;
	/** Of the present run; kept for its memory. */
	FOpenTag Tag;
};
} // namespace

TSharedRef<FDefaultRichTextMarkupParser> FDefaultRichTextMarkupParser::Create()
{
	return MakeShared<FDefaultRichTextMarkupParser>();
}

void FDefaultRichTextMarkupParser::Process(TArray<FTextLineParseResults>& Results, const FString& Input, FString& Output)
{
	FMarkupReader(Results, Input, Output).Read();
}
