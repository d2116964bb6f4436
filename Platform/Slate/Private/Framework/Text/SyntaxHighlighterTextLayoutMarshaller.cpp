// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Text/SyntaxHighlighterTextLayoutMarshaller.h"

FSyntaxHighlighterTextLayoutMarshaller::FSyntaxHighlighterTextLayoutMarshaller(const TSharedRef<FSyntaxTokenizer>& InTokenizer)
	: Tokenizer(InTokenizer)
{
}

void FSyntaxHighlighterTextLayoutMarshaller::SetText(const FString& SourceString, FTextLayout& TargetTextLayout)
{
	TArray<FSyntaxTokenizer::FTokenizedLine> TokenizedLines;
	Tokenizer->Process(TokenizedLines, SourceString);
	ParseTokens(SourceString, TargetTextLayout, MoveTemp(TokenizedLines));
}
