// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Text/PlainTextLayoutMarshaller.h"
#include "Framework/Text/SyntaxTokenizer.h"

/** Cuts the source into tokens; what they look like is the derived class's to say. */
class FSyntaxHighlighterTextLayoutMarshaller : public FPlainTextLayoutMarshaller
{
public:
	virtual void SetText(const FString& SourceString, FTextLayout& TargetTextLayout) override;

	/** A quote in one line can change what the next one is. */
	virtual bool RequiresLiveUpdate() const override { return true; }

protected:
	explicit FSyntaxHighlighterTextLayoutMarshaller(const TSharedRef<FSyntaxTokenizer>& InTokenizer);

	/** Appends a line to the layout for each tokenized one. The ranges are into `SourceString`. */
	virtual void ParseTokens(
		const FString& SourceString, FTextLayout& TargetTextLayout, TArray<FSyntaxTokenizer::FTokenizedLine> TokenizedLines) = 0;

private:
	TSharedRef<FSyntaxTokenizer> Tokenizer;
};
