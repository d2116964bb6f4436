// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include <string>
#include <string_view>

// What the chat shows for a message, in UTF-8.
std::string RenderMarkup(FStringView Markdown);
std::string RenderMarkup(std::string_view Markdown);

// The same without "VorelMarkdown." before the names.
std::string RenderShort(std::string_view Markdown);

// Empty for well-formed markup, else what is wrong: all text stands in runs that are closed on their line and whose names the style set has
// or are "code"; text is escaped.
std::string FindMarkupError(std::string_view Markup);

std::string Repeat(std::string_view Text, size_t Count);
