// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/EvenTextShaper.h"

namespace
{
bool IsContinuation(FStringView Text, int32 Index)
{
	const TCHAR Character = Text[Index];
	const bool bSecondHalf = Character >= 0xDC00 && Character < 0xE000;
	const bool bCombining = (Character >= 0x0300 && Character < 0x0370) || Character == 0x200D || Character == 0xFE0F;
	const bool bJoined = Index > 0 && Text[Index - 1] == 0x200D;
	return bSecondHalf || bCombining || bJoined;
}
} // namespace

TSharedRef<const FShapedText> FEvenTextShaper::Shape(
	FStringView Text, const FSlateFontInfo& Font, float Scale, TextBiDi::ETextDirection Direction, ETextShapingMethod)
{
	const float Advance = Font.Size * 0.8f * Scale;
	const TSharedRef<FReadableShapedText> Shaped = MakeShared<FReadableShapedText>();
	Shaped->Letters = FString(Text);
	for (int32 Index = 0; Index < Text.Len(); ++Index)
	{
		Shaped->CaretOffsets.Add(Shaped->Width);
		Shaped->Width += IsContinuation(Text, Index) ? 0.0f : Advance;
	}
	Shaped->CaretOffsets.Add(Shaped->Width);
	if (Direction == TextBiDi::ETextDirection::RightToLeft)
	{
		for (float& Offset : Shaped->CaretOffsets)
		{
			Offset = Shaped->Width - Offset;
		}
	}
	return Shaped;
}

FFontMetrics FEvenTextShaper::GetMetrics(const FSlateFontInfo& Font, float Scale)
{
	FFontMetrics Metrics;
	Metrics.LineHeight = Font.Size * 1.6f * Scale;
	Metrics.Ascent = Metrics.LineHeight * 0.75f;
	Metrics.Descent = Metrics.LineHeight * 0.25f;
	Metrics.UnderlineOffset = Scale;
	Metrics.UnderlineThickness = Scale;
	return Metrics;
}
