// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Styling/SlateBrush.h"

/** One color, to the edges. */
struct FSlateColorBrush : public FSlateBrush
{
	explicit FSlateColorBrush(const FSlateColor& InColor)
		: FSlateBrush(ESlateBrushDrawType::Image, FName(), FMargin(), InColor, FVector2D(32.0, 32.0), ESlateBrushTileType::NoTile,
			  ESlateBrushImageType::NoImage)
	{
	}
	explicit FSlateColorBrush(const FLinearColor& InColor)
		: FSlateColorBrush(FSlateColor(InColor))
	{
	}
};
