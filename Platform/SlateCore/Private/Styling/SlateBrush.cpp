// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Styling/SlateBrush.h"

FSlateBrush::FSlateBrush(ESlateBrushDrawType::Type InDrawType, const FName& InResourceName, const FMargin& InMargin,
	const FSlateColor& InTint, const FVector2D& InImageSize, ESlateBrushTileType::Type InTiling, ESlateBrushImageType::Type InImageType)
	: DrawAs(InDrawType)
	, Tiling(InTiling)
	, ImageType(InImageType)
	, ImageSize(InImageSize)
	, Margin(InMargin)
	, TintColor(InTint)
	, ResourceName(InResourceName)
{
}

bool FSlateBrush::operator==(const FSlateBrush& Other) const
{
	return DrawAs == Other.DrawAs && Tiling == Other.Tiling && ImageType == Other.ImageType && ImageSize == Other.ImageSize &&
		   Margin == Other.Margin && TintColor == Other.TintColor && OutlineSettings == Other.OutlineSettings &&
		   ResourceName == Other.ResourceName;
}
