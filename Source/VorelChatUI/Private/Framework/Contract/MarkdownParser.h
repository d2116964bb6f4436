// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

// Turns the Markdown text of one message into rich text markup. Called in the order SetContent, Parse, RenderToHTML, on the whole text each
// time. Takes any text, also one that stops in the middle of a construct; there is nothing to report. Defined by VorelMarkdown.
class UMarkdownParser : public UObject
{
public:
	UMarkdownParser();

	void SetContent(const FString& Markdown);
	void Parse();

	// Runs <Name>content</>, where Name is a style name of "VorelMarkdown." or "code", and "__NL__" stands for a newline inside a code run.
	FString RenderToHTML();

private:
	// What the parser remembers between calls is VorelMarkdown's business.
	struct FState;
	TSharedPtr<FState> State;
};
