// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

enum class EMarkupBlock : uint8
{
	Paragraph,
	Header1,
	Header2,
	Header3,
	Header4,
	Header5,
	Header6,
	OrderedList,
	UnorderedList,
	Table,
	HorizontalRule
};

enum class EMarkupWord : uint8
{
	Emphasis,
	Strong,
	Strikethrough,
	Link,
	InlineCode,
	Image
};

// What a run looks like. Every value has a name that the Markdown style set knows: styles are named for up to four nested quotes and up to
// three different inline words, which stand in the order of their nesting.
struct FMarkupStyle
{
	static constexpr uint8 MaxQuoteDepth = 4;
	static constexpr uint8 MaxWords = 3;

	EMarkupBlock Block = EMarkupBlock::Paragraph;
	uint8 QuoteDepth = 0;
	uint8 WordCount = 0;
	// Unused ones are zero, so that comparing all members compares the styles.
	EMarkupWord Words[MaxWords] = {};

	// A word that is there already moves to the end, and of more than three the outermost falls out: the last font wins on screen too.
	FMarkupStyle With(EMarkupWord Word) const;

	// "VorelMarkdown.Blockquote.Paragraph.Strong". A block that has no quoted form is called Paragraph inside quotes.
	void AppendNameTo(FString& Out) const;

	bool operator==(const FMarkupStyle&) const = default;
};
