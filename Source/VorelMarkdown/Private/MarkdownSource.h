// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include <string>
#include <string_view>

// A message as the reader takes it: valid UTF-8, each kind of line end a "\n", control characters but tab and newline replaced by U+FFFD,
// and guarded against the shapes of text for which md4c 0.4.8 needs quadratic time or loses some of it.
class FMarkdownSource
{
public:
	// Stands before a character that must not begin a construct. It means nothing and is dropped when text is written.
	static constexpr char GuardMark = '\x01';

	static constexpr char32_t ReplacementCharacter = 0xFFFD;

	// What is written for a character: a newline for each kind of line end, the replacement character for what nobody can see.
	static char32_t Sanitize(char32_t CodePoint);

	// A character that must be text is veiled in the source, and becomes itself again when text is written.
	static char32_t Unveil(char32_t CodePoint);

	static void AppendUtf8(std::string& Out, char32_t CodePoint);

	explicit FMarkdownSource(FStringView Markdown);

	operator std::string_view() const { return Bytes; }

private:
	void Convert(FStringView Markdown);

	std::string Bytes;
};
