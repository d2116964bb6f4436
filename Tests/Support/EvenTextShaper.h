// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Fonts/QtShapedText.h"

/** Shaped text that still knows its letters, so that a test can read what was painted. */
class FReadableShapedText final : public FQtShapedText
{
public:
	FString Letters;
};

/**
 * A font for exact numbers: of 10 points each letter is 8 units wide, and a line is 16 units high. What continues a letter, be it the
 * second half of a pair, a combining mark or what is joined by U+200D, takes no room. Pictures show its letters as blanks.
 */
class FEvenTextShaper final : public ITextShaper
{
public:
	TSharedRef<const FShapedText> Shape(
		FStringView Text, const FSlateFontInfo& Font, float Scale, TextBiDi::ETextDirection Direction, ETextShapingMethod Method) override;
	FFontMetrics GetMetrics(const FSlateFontInfo& Font, float Scale) override;
};
