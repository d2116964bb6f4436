// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/AnswerNote.h"

#define LOCTEXT_NAMESPACE "VorelClient"

namespace
{
// Of a block of code. Empty where there is none.
struct FFence
{
	// Blanks as wide as what stands before it, a list's bullet too.
	FString Indentation;
	FString Marks;
};

int32 CountFrom(FStringView Line, int32 Start, TFunctionRef<bool(TCHAR)> bCounts)
{
	int32 End = Start;
	while (End < Line.Len() && bCounts(Line[End]))
	{
		++End;
	}
	return End - Start;
}

int32 CountBlanks(FStringView Line, int32 Start)
{
	return CountFrom(Line, Start, [](TCHAR Unit) { return Unit == ' ' || Unit == '\t'; });
}

// The width of "- ", "12. " and the like; 0 where there is none.
int32 CountBullet(FStringView Line, int32 Start)
{
	const int32 Digits = CountFrom(Line, Start, [](TCHAR Unit) { return Unit >= '0' && Unit <= '9'; });
	const int32 Mark = Start + Digits;
	const FStringView Marks = Digits > 0 ? TEXTVIEW(".)") : TEXTVIEW("-*+");
	int32 Found;
	const bool bMark = Mark < Line.Len() && Marks.FindChar(Line[Mark], Found);
	const int32 Blanks = bMark ? CountBlanks(Line, Mark + 1) : 0;
	return Blanks > 0 ? Digits + 1 + Blanks : 0;
}

// Of a line that could begin or end a block.
FFence FindFence(FStringView Line)
{
	int32 Start = CountBlanks(Line, 0);
	Start += CountBullet(Line, Start);
	const TCHAR Mark = Start < Line.Len() ? Line[Start] : TCHAR(0);
	const int32 Length = Mark == '`' || Mark == '~' ? CountFrom(Line, Start, [Mark](TCHAR Unit) { return Unit == Mark; }) : 0;
	constexpr int32 LeastLength = 3;
	const bool bInline = Mark == '`' && Line.Mid(Start + Length).Contains(TEXT("`"));
	return Length < LeastLength || bInline ? FFence() : FFence{FString::ChrN(Start, TEXT(' ')), FString(Line.Mid(Start, Length))};
}

// What ends the block in which the text ends. A block within a quotation ends by itself.
FString MakeClosingFence(const FString& Text)
{
	FFence Open;
	for (FStringView Rest = Text; !Rest.IsEmpty();)
	{
		int32 Length;
		Length = Rest.FindChar('\n', Length) ? Length : Rest.Len();
		const FStringView Line = Rest.Left(Length);
		const FFence Fence = FindFence(Line);
		if (Open.Marks.IsEmpty())
		{
			Open = Fence;
		}
		else if (Fence.Marks.StartsWith(Open.Marks) && Line.TrimStartAndEnd().Len() == Fence.Marks.Len())
		{
			Open = FFence();
		}
		Rest = Rest.RightChop(Length + 1);
	}
	const FString LineEnd = Text.EndsWith(TEXT("\n")) ? TEXT("") : TEXT("\n");
	return Open.Marks.IsEmpty() ? FString() : LineEnd + Open.Indentation + Open.Marks;
}

FText GetSentence(EAnswerEnd End)
{
	switch (End)
	{
	case EAnswerEnd::LengthLimit:
		return LOCTEXT("LengthNote", "*The answer ends here because it reached the assistant's length limit.*");
	case EAnswerEnd::ContentFilter:
		return LOCTEXT("FilterNote", "*The rest was withheld by the content rules of the assistant's provider.*");
	default:
		return LOCTEXT("InterruptedNote", "*The answer was interrupted here.*");
	}
}
} // namespace

FString MakeAnswerNote(const FString& Answer, EAnswerEnd End)
{
	return End == EAnswerEnd::Complete ? FString() : MakeClosingFence(Answer) + TEXT("\n\n") + GetSentence(End).ToString();
}

#undef LOCTEXT_NAMESPACE
