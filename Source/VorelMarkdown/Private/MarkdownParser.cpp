// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "MarkdownParser.h"

#include "MarkdownSource.h"
#include "MarkupRenderer.h"
#include "UnfinishedLine.h"

struct UMarkdownParser::FState
{
	FString Content;
	FString Markup;
};

UMarkdownParser::UMarkdownParser()
	: State(MakeShared<FState>())
{
}

void UMarkdownParser::SetContent(const FString& Markdown)
{
	State->Content = Markdown;
}

void UMarkdownParser::Parse()
{
	const FMarkdownSource Source(State->Content);
	const std::string_view Text = Source;
	const std::string_view Settled = Text.substr(0, GetSettledSize(Text));
	FMarkupRenderer Renderer(Settled);
	ReadMarkdown(Settled, Renderer);
	State->Markup = Renderer.Finish();
}

FString UMarkdownParser::RenderToHTML()
{
	return State->Markup;
}
