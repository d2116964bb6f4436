// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "MarkupStyle.h"

namespace
{
FStringView GetBlockName(EMarkupBlock Block)
{
	static constexpr FStringView Names[] = {TEXT("Paragraph"), TEXT("Header1"), TEXT("Header2"), TEXT("Header3"), TEXT("Header4"),
		TEXT("Header5"), TEXT("Header6"), TEXT("OrderedList"), TEXT("UnorderedList"), TEXT("Table"), TEXT("HorizontalRule")};
	return Names[static_cast<uint8>(Block)];
}

FStringView GetWordName(EMarkupWord Word)
{
	static constexpr FStringView Names[] = {
		TEXT("Emphasis"), TEXT("Strong"), TEXT("Strikethrough"), TEXT("Link"), TEXT("InlineCode"), TEXT("Image")};
	return Names[static_cast<uint8>(Word)];
}
} // namespace

FMarkupStyle FMarkupStyle::With(EMarkupWord Word) const
{
	FMarkupStyle Result;
	Result.Block = Block;
	Result.QuoteDepth = QuoteDepth;
	for (uint8 Index = 0; Index < WordCount; ++Index)
	{
		if (Words[Index] != Word)
		{
			Result.Words[Result.WordCount++] = Words[Index];
		}
	}
	if (Result.WordCount == MaxWords)
	{
		Result.Words[0] = Result.Words[1];
		Result.Words[1] = Result.Words[2];
		--Result.WordCount;
	}
	Result.Words[Result.WordCount++] = Word;
	return Result;
}

void FMarkupStyle::AppendNameTo(FString& Out) const
{
	Out += TEXTVIEW("VorelMarkdown");
	for (uint8 Depth = 0; Depth < QuoteDepth; ++Depth)
	{
		Out += TEXTVIEW(".Blockquote");
	}
	const bool bHasName = QuoteDepth == 0 || (Block != EMarkupBlock::Table && Block != EMarkupBlock::HorizontalRule);
	Out += TEXT('.');
	Out += GetBlockName(bHasName ? Block : EMarkupBlock::Paragraph);
	for (uint8 Index = 0; Index < WordCount; ++Index)
	{
		Out += TEXT('.');
		Out += GetWordName(Words[Index]);
	}
}
