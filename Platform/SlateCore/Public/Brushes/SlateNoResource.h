// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Styling/SlateBrush.h"

/** Draws nothing. */
struct FSlateNoResource : public FSlateBrush
{
	explicit FSlateNoResource(const FVector2D& InImageSize = FVector2D(0.0, 0.0))
		: FSlateBrush(ESlateBrushDrawType::NoDrawType, FName(), FMargin(), FLinearColor(1.0f, 1.0f, 1.0f, 1.0f), InImageSize,
			  ESlateBrushTileType::NoTile, ESlateBrushImageType::NoImage)
	{
	}
};
