// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/EvenTextShaper.h"

#include "Fonts/QtShapedText.h"

TSharedRef<const FShapedText> FEvenTextShaper::Shape(
	FStringView Text, const FSlateFontInfo& Font, float Scale, TextBiDi::ETextDirection Direction, ETextShapingMethod)
{
	const float Advance = Font.Size * 0.8f * Scale;
	const TSharedRef<FShapedText> Shaped = MakeShared<FQtShapedText>();
	Shaped->Width = Advance * Text.Len();
	for (int32 Index = 0; Index <= Text.Len(); ++Index)
	{
		const bool bReversed = Direction == TextBiDi::ETextDirection::RightToLeft;
		Shaped->CaretOffsets.Add(bReversed ? Shaped->Width - Advance * Index : Advance * Index);
	}
	return Shaped;
}

FFontMetrics FEvenTextShaper::GetMetrics(const FSlateFontInfo& Font, float Scale)
{
	FFontMetrics Metrics;
	Metrics.LineHeight = Font.Size * 1.6f * Scale;
	Metrics.Ascent = Metrics.LineHeight * 0.75f;
	Metrics.Descent = Metrics.LineHeight * 0.25f;
	return Metrics;
}
