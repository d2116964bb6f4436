// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Styling/SlateBrush.h"

/** An image file, stretched over the area. */
struct FSlateImageBrush : public FSlateBrush
{
	FSlateImageBrush(const FString& InImageName, const FVector2D& InImageSize,
		const FSlateColor& InTint = FLinearColor(1.0f, 1.0f, 1.0f, 1.0f), ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile,
		ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Image, FName(*InImageName), FMargin(), InTint, InImageSize, InTiling, InImageType)
	{
	}
};

/** An image file of shapes rather than pixels. */
struct FSlateVectorImageBrush : public FSlateBrush
{
	FSlateVectorImageBrush(
		const FString& InImageName, const FVector2D& InImageSize, const FSlateColor& InTint = FLinearColor(1.0f, 1.0f, 1.0f, 1.0f))
		: FSlateBrush(ESlateBrushDrawType::Image, FName(*InImageName), FMargin(), InTint, InImageSize, ESlateBrushTileType::NoTile,
			  ESlateBrushImageType::Vector)
	{
	}
};
