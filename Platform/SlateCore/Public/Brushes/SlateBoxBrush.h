// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Styling/SlateBrush.h"

/** An image in nine parts, of which the middle is drawn too. */
struct FSlateBoxBrush : public FSlateBrush
{
	FSlateBoxBrush(const FString& InImageName, const FMargin& InMargin, const FSlateColor& InTint = FLinearColor(1.0f, 1.0f, 1.0f, 1.0f))
		: FSlateBrush(ESlateBrushDrawType::Box, FName(*InImageName), InMargin, InTint, FVector2D(32.0, 32.0), ESlateBrushTileType::NoTile,
			  ESlateBrushImageType::FullColor)
	{
	}
};
