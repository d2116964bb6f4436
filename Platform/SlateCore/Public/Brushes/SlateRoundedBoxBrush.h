// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Styling/SlateBrush.h"

/** A filled shape with round corners of one radius, in units. */
struct FSlateRoundedBoxBrush : public FSlateBrush
{
	FSlateRoundedBoxBrush(const FSlateColor& InColor, float InRadius,
		const FSlateColor& InOutlineColor = FLinearColor(0.0f, 0.0f, 0.0f, 0.0f), float InOutlineWidth = 0.0f)
		: FSlateBrush(ESlateBrushDrawType::RoundedBox, FName(), FMargin(), InColor, FVector2D(32.0, 32.0), ESlateBrushTileType::NoTile,
			  ESlateBrushImageType::NoImage)
	{
		OutlineSettings = FSlateBrushOutlineSettings(InRadius, InOutlineColor, InOutlineWidth);
	}
};
