// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Layout/Margin.h"
#include "Math/Vector4.h"
#include "Styling/SlateColor.h"

namespace ESlateBrushDrawType
{
enum Type : uint8
{
	NoDrawType,
	/** The image in nine parts; the corners keep their size, the rest is stretched. */
	Box,
	/** As Box, without the middle, and with repeated edges. */
	Border,
	Image,
	/** No image: a filled shape with round corners and an outline. */
	RoundedBox
};
}

namespace ESlateBrushTileType
{
enum Type : uint8
{
	NoTile,
	Horizontal,
	Vertical,
	Both
};
}

namespace ESlateBrushImageType
{
enum Type : uint8
{
	NoImage,
	FullColor,
	/** Drawn sharp at any size. */
	Vector
};
}

/** The outline and corners of a rounded box, in units. */
struct FSlateBrushOutlineSettings
{
	/** Top left, top right, bottom right, bottom left. */
	FVector4 CornerRadii;
	FSlateColor Color = FLinearColor(0.0f, 0.0f, 0.0f, 0.0f);
	float Width = 0.0f;

	FSlateBrushOutlineSettings() = default;
	explicit FSlateBrushOutlineSettings(
		float Radius, const FSlateColor& InColor = FLinearColor(0.0f, 0.0f, 0.0f, 0.0f), float InWidth = 0.0f)
		: CornerRadii{Radius, Radius, Radius, Radius}
		, Color(InColor)
		, Width(InWidth)
	{
	}

	bool operator==(const FSlateBrushOutlineSettings&) const = default;
};

/** How an area is filled. Made through its subclasses, which only have constructors of their own and may be cut down to it. */
struct FSlateBrush
{
	FSlateBrush() = default;
	virtual ~FSlateBrush() = default;
	FSlateBrush(const FSlateBrush&) = default;
	FSlateBrush& operator=(const FSlateBrush&) = default;

	ESlateBrushDrawType::Type DrawAs = ESlateBrushDrawType::Image;
	ESlateBrushTileType::Type Tiling = ESlateBrushTileType::NoTile;
	ESlateBrushImageType::Type ImageType = ESlateBrushImageType::NoImage;

	/** In units. */
	FVector2D ImageSize = FVector2D(32.0, 32.0);

	/** For Box and Border: how much of the image is edge, as a part of its width or height. */
	FMargin Margin;
	FSlateColor TintColor = FLinearColor(1.0f, 1.0f, 1.0f, 1.0f);
	FSlateBrushOutlineSettings OutlineSettings;

	FVector2D GetImageSize() const { return ImageSize; }

	/** The image's file; none for a brush that is color alone. */
	const FName& GetResourceName() const { return ResourceName; }
	FLinearColor GetTint(const FWidgetStyle& InWidgetStyle) const { return TintColor.GetColor(InWidgetStyle); }

	bool operator==(const FSlateBrush& Other) const;

protected:
	FSlateBrush(ESlateBrushDrawType::Type InDrawType, const FName& InResourceName, const FMargin& InMargin, const FSlateColor& InTint,
		const FVector2D& InImageSize, ESlateBrushTileType::Type InTiling, ESlateBrushImageType::Type InImageType);

private:
	FName ResourceName;
};
