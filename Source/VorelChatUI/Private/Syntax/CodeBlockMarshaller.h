// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Text/SyntaxHighlighterTextLayoutMarshaller.h"
#include "Syntax/CodeBlockTextStyle.h"

// What the text behind a token is part of.
enum class ECodeParseState : uint8
{
	None,
	InString,
	InCharacter,
	InLineComment,
	InBlockComment
};

// Colors code as C++, whatever it is written in. Comments of blocks, strings and character literals that are not closed go on into the next
// line; there are no escapes.
class FCodeBlockMarshaller : public FSyntaxHighlighterTextLayoutMarshaller
{
public:
	static TSharedRef<FCodeBlockMarshaller> Create();

protected:
	void ParseTokens(
		const FString& SourceString, FTextLayout& TargetTextLayout, TArray<FSyntaxTokenizer::FTokenizedLine> TokenizedLines) override;

private:
	FCodeBlockMarshaller(const TSharedRef<FSyntaxTokenizer>& InTokenizer, const FCodeBlockTextStyle& InTextStyle);

	FCodeBlockTextStyle TextStyle;
};
