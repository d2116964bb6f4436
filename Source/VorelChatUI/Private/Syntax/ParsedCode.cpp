// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Syntax/ParsedCode.h"

#include <algorithm>

namespace
{

// A message is made anew as a whole: its last block finds the one before if there are fewer than this in it.
constexpr int32 MaxRecent = 32;

TArray<TWeakPtr<FParsedCode>>& GetRecent()
{
	static TArray<TWeakPtr<FParsedCode>> Recent;
	return Recent;
}

// The lines that end, newline and all, within what is common.
int32 CountLinesWithin(const TArray<FSyntaxTokenizer::FTokenizedLine>& Lines, int32 CommonLength)
{
	const auto Behind = std::upper_bound(Lines.begin(), Lines.end(), CommonLength,
		[](int32 Length, const FSyntaxTokenizer::FTokenizedLine& Line) { return Length < Line.Range.BeginIndex; });
	return FMath::Max(static_cast<int32>(Behind - Lines.begin()) - 1, 0);
}

} // namespace

TSharedRef<FParsedCode> FParsedCode::Create()
{
	const TSharedRef<FParsedCode> Code = MakeShared<FParsedCode>();
	if (GetRecent().Num() == MaxRecent)
	{
		GetRecent().RemoveAt(0);
	}
	GetRecent().Add(TWeakPtr<FParsedCode>(Code));
	return Code;
}

void FParsedCode::Parse(
	const FString& NewSource, const TArray<FSyntaxTokenizer::FTokenizedLine>& TokenizedLines, const FCodeBlockTextStyle& TextStyle)
{
	int32 CommonLength = 0;
	const TSharedPtr<FParsedCode> Other = FindMostAlike(NewSource, CommonLength);
	TakeLines(Other ? *Other : *this, CountLinesWithin(TokenizedLines, CommonLength));
	Source = NewSource;
	Lines.Reserve(TokenizedLines.Num());
	FCodeLineParser Parser(Source, TextStyle, States.IsEmpty() ? ECodeParseState::None : States.Last());
	for (int32 Index = Lines.Num(); Index < TokenizedLines.Num(); ++Index)
	{
		Lines.Add(Parser.ParseLine(TokenizedLines[Index]));
		States.Add(Parser.GetState());
	}
}

TSharedPtr<FParsedCode> FParsedCode::FindMostAlike(const FString& NewSource, int32& OutCommonLength)
{
	TSharedPtr<FParsedCode> Found;
	for (const TWeakPtr<FParsedCode>& Recent : GetRecent())
	{
		const TSharedPtr<FParsedCode> Code = Recent.Pin();
		const int32 CommonLength = Code ? Code->GetCommonLength(NewSource) : 0;
		if (CommonLength > OutCommonLength)
		{
			Found = Code;
			OutCommonLength = CommonLength;
		}
	}
	return Found;
}

int32 FParsedCode::GetCommonLength(const FString& NewSource) const
{
	const auto Difference = std::mismatch(NewSource.begin(), NewSource.end(), Source.begin(), Source.end());
	return static_cast<int32>(Difference.first - NewSource.begin());
}

void FParsedCode::TakeLines(FParsedCode& Other, int32 Count)
{
	if (&Other != this)
	{
		Lines = MoveTemp(Other.Lines);
		States = MoveTemp(Other.States);
		// There is nothing left to take from it.
		Other = FParsedCode();
	}
	Lines.RemoveAt(Count, Lines.Num() - Count);
	States.SetNum(Count);
}
