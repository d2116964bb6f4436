// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Fonts/TextShaper.h"

/**
 * A font for exact numbers: of 10 points each UTF-16 unit is 8 units wide, and a line is 16 units high. Its letters
 * have no look: pictures show them as blanks.
 */
class FEvenTextShaper final : public ITextShaper
{
public:
	TSharedRef<const FShapedText> Shape(
		FStringView Text, const FSlateFontInfo& Font, float Scale, TextBiDi::ETextDirection Direction, ETextShapingMethod Method) override;
	FFontMetrics GetMetrics(const FSlateFontInfo& Font, float Scale) override;
};
