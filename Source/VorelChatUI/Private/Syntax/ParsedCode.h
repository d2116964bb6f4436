// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Syntax/CodeLineParser.h"

// A block of code with the lines that were made of it. A block that streams in is made anew with each piece of it, so the next one takes
// over what has not changed.
class FParsedCode
{
public:
	static TSharedRef<FParsedCode> Create();

	void Parse(
		const FString& NewSource, const TArray<FSyntaxTokenizer::FTokenizedLine>& TokenizedLines, const FCodeBlockTextStyle& TextStyle);

	const TArray<FTextLayout::FNewLineData>& GetLines() const { return Lines; }

private:
	static TSharedPtr<FParsedCode> FindMostAlike(const FString& NewSource, int32& OutCommonLength);

	int32 GetCommonLength(const FString& NewSource) const;
	void TakeLines(FParsedCode& Other, int32 Count);

	FString Source;
	TArray<FTextLayout::FNewLineData> Lines;
	// Behind each line.
	TArray<ECodeParseState> States;
};
