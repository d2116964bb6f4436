// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Layout/SlateRect.h"
#include "CoreMinimal.h"
#include "Rendering/SlateRenderTransform.h"

class FArrangedWidget;
class SWidget;

/** From a widget's units to device pixels, before any render transform: absolute = local * scale + translation. */
struct FSlateLayoutTransform
{
	float Scale = 1.0f;
	FVector2D Translation = FVector2D(0.0, 0.0);

	FSlateLayoutTransform() = default;
	explicit FSlateLayoutTransform(const FVector2D& InTranslation)
		: Translation(InTranslation)
	{
	}
	explicit FSlateLayoutTransform(float InScale, const FVector2D& InTranslation = FVector2D(0.0, 0.0))
		: Scale(InScale)
		, Translation(InTranslation)
	{
	}

	FVector2D TransformPoint(const FVector2D& Local) const { return Local * Scale + Translation; }
	bool operator==(const FSlateLayoutTransform& Other) const { return Scale == Other.Scale && Translation == Other.Translation; }
};

/** Where something is drawn: a size in units and the way from there to device pixels. */
struct FPaintGeometry
{
	FVector2D LocalSize = FVector2D(0.0, 0.0);
	FSlateRenderTransform RenderTransform;
	/** Device pixels per unit, without the render transform. */
	float DrawScale = 1.0f;

	FVector2D GetLocalSize() const { return LocalSize; }
	FSlateRect GetRenderBoundingRect() const;
	bool operator==(const FPaintGeometry& Other) const;
};

/**
 * The room of a widget. Local space is in units with the origin in the widget's top left corner; absolute space is in device pixels of the
 * window. Layout ignores render transforms; drawing and hit testing follow them.
 */
class FGeometry
{
public:
	FGeometry() = default;

	static FGeometry MakeRoot(const FVector2D& LocalSize, const FSlateLayoutTransform& LayoutTransform);

	/** A child at an offset in this geometry's units, with the child's own render transform about its pivot. */
	FArrangedWidget MakeChild(const TSharedRef<SWidget>& Child, const FVector2D& Offset, const FVector2D& ChildSize) const;
	FGeometry MakeChild(const FVector2D& ChildSize, const FSlateLayoutTransform& ChildTransform) const;

	FPaintGeometry ToPaintGeometry() const;
	FPaintGeometry ToPaintGeometry(const FVector2D& InLocalSize, const FSlateLayoutTransform& InLocalTransform) const;

	FVector2D GetLocalSize() const { return Size; }
	FVector2D GetAbsoluteSize() const { return Size * Layout.Scale; }
	FVector2D GetAbsolutePosition() const { return Render.TransformPoint(FVector2D(0.0, 0.0)); }
	const FSlateLayoutTransform& GetAccumulatedLayoutTransform() const { return Layout; }
	float GetScale() const { return Layout.Scale; }

	FVector2D AbsoluteToLocal(const FVector2D& Absolute) const { return Render.Inverse().TransformPoint(Absolute); }
	FVector2D LocalToAbsolute(const FVector2D& Local) const { return Render.TransformPoint(Local); }
	bool IsUnderLocation(const FVector2D& Absolute) const;

	/** Around the widget as laid out, and as drawn. */
	FSlateRect GetLayoutBoundingRect() const;
	FSlateRect GetRenderBoundingRect() const;

	bool operator==(const FGeometry& Other) const;

private:
	FVector2D Size = FVector2D(0.0, 0.0);
	FSlateLayoutTransform Layout;
	FSlateRenderTransform Render;
};
