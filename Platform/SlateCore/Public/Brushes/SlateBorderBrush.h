// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Styling/SlateBrush.h"

/** The edges of an image around an empty middle. */
struct FSlateBorderBrush : public FSlateBrush
{
	FSlateBorderBrush(const FString& InImageName, const FMargin& InMargin, const FSlateColor& InTint = FLinearColor(1.0f, 1.0f, 1.0f, 1.0f))
		: FSlateBrush(ESlateBrushDrawType::Border, FName(*InImageName), InMargin, InTint, FVector2D(32.0, 32.0),
			  ESlateBrushTileType::NoTile, ESlateBrushImageType::FullColor)
	{
	}
};
