// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Text/SyntaxHighlighterTextLayoutMarshaller.h"
#include "Syntax/CodeBlockTextStyle.h"

class FParsedCode;

// Colors code as C++, whatever it is written in.
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
	TSharedRef<FParsedCode> Code;
};
