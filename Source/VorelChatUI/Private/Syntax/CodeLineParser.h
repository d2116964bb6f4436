// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Text/SyntaxTokenizer.h"
#include "Framework/Text/TextLayout.h"

struct FCodeBlockTextStyle;

// What the text behind a token is part of.
enum class ECodeParseState : uint8
{
	None,
	InString,
	InCharacter,
	InLineComment,
	InBlockComment
};

// Makes the runs of line after line. Comments of blocks, strings and character literals that are not closed go on into the next line; there
// are no escapes.
class FCodeLineParser
{
public:
	// Both outlive the parser.
	FCodeLineParser(FStringView InSource, const FCodeBlockTextStyle& InTextStyle, ECodeParseState InState);

	FTextLayout::FNewLineData ParseLine(const FSyntaxTokenizer::FTokenizedLine& Line);

	// Behind the last line.
	ECodeParseState GetState() const { return State; }

private:
	TSharedRef<IRun> ParseToken(const FSyntaxTokenizer::FToken& Token, const TSharedRef<FString>& ModelString);

	FStringView Source;
	const FCodeBlockTextStyle& TextStyle;
	ECodeParseState State;
};
