// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include <string>
#include <string_view>
#include <vector>

// What the chat shows for a message, in UTF-8.
std::string RenderMarkup(FStringView Markdown);
std::string RenderMarkup(std::string_view Markdown);

// The same without "VorelMarkdown." before the names.
std::string RenderShort(std::string_view Markdown);

struct FShownRun
{
	// Without "VorelMarkdown."; "code" for a block of code; empty for what stands outside of all runs, such as the end of a line.
	std::string Name;
	std::string Text;
};

// The runs that the message view makes of markup, with the new lines of code that its decorator puts back.
std::vector<FShownRun> ReadMarkup(std::string_view Markup);

// Empty for well-formed markup, else what is wrong: all text stands in runs, and their names are "code" or those of the style set.
std::string FindMarkupError(const std::vector<FShownRun>& Runs);

std::string GetShownText(std::string_view Markup);
std::string Repeat(std::string_view Text, size_t Count);
