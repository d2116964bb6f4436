// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Layout/Geometry.h"

#include "Layout/ArrangedWidget.h"
#include "Widgets/SWidget.h"

namespace
{
FSlateRect BoundTransformedBox(const FVector2D& Size, const FSlateRenderTransform& Transform)
{
	const FVector2D Origin = Transform.GetTranslation();
	const FVector2D AlongX = Transform.TransformVector(FVector2D(Size.X, 0.0));
	const FVector2D AlongY = Transform.TransformVector(FVector2D(0.0, Size.Y));
	const double Left = Origin.X + FMath::Min(0.0, AlongX.X) + FMath::Min(0.0, AlongY.X);
	const double Top = Origin.Y + FMath::Min(0.0, AlongX.Y) + FMath::Min(0.0, AlongY.Y);
	const double Width = FMath::Abs(AlongX.X) + FMath::Abs(AlongY.X);
	const double Height = FMath::Abs(AlongX.Y) + FMath::Abs(AlongY.Y);
	return FSlateRect(
		static_cast<float>(Left), static_cast<float>(Top), static_cast<float>(Left + Width), static_cast<float>(Top + Height));
}
} // namespace

FSlateRect FPaintGeometry::GetRenderBoundingRect() const
{
	return BoundTransformedBox(LocalSize, RenderTransform);
}

bool FPaintGeometry::operator==(const FPaintGeometry& Other) const
{
	return LocalSize == Other.LocalSize && RenderTransform == Other.RenderTransform && DrawScale == Other.DrawScale;
}

FGeometry FGeometry::MakeRoot(const FVector2D& LocalSize, const FSlateLayoutTransform& LayoutTransform)
{
	FGeometry Root;
	Root.Size = LocalSize;
	Root.Layout = LayoutTransform;
	Root.Render = FSlateRenderTransform(LayoutTransform.Scale, LayoutTransform.Translation);
	return Root;
}

FGeometry FGeometry::MakeChild(const FVector2D& ChildSize, const FSlateLayoutTransform& ChildTransform) const
{
	FGeometry Child;
	Child.Size = ChildSize;
	Child.Layout.Scale = Layout.Scale * ChildTransform.Scale;
	Child.Layout.Translation = Layout.TransformPoint(ChildTransform.Translation);
	Child.Render = FSlateRenderTransform(ChildTransform.Scale, ChildTransform.Translation).Concatenate(Render);
	return Child;
}

FArrangedWidget FGeometry::MakeChild(const TSharedRef<SWidget>& Child, const FVector2D& Offset, const FVector2D& ChildSize) const
{
	FGeometry ChildGeometry = MakeChild(ChildSize, FSlateLayoutTransform(Offset));
	if (const TOptional<FSlateRenderTransform>& Own = Child->GetRenderTransform(); Own.IsSet())
	{
		const FVector2D Pivot = ChildSize * Child->GetRenderTransformPivot();
		ChildGeometry.Render = FSlateRenderTransform(-Pivot)
								   .Concatenate(Own.GetValue())
								   .Concatenate(FSlateRenderTransform(Pivot))
								   .Concatenate(ChildGeometry.Render);
	}
	return FArrangedWidget(Child, ChildGeometry);
}

FPaintGeometry FGeometry::ToPaintGeometry() const
{
	return FPaintGeometry{Size, Render, Layout.Scale};
}

FPaintGeometry FGeometry::ToPaintGeometry(const FVector2D& InLocalSize, const FSlateLayoutTransform& InLocalTransform) const
{
	return MakeChild(InLocalSize, InLocalTransform).ToPaintGeometry();
}

bool FGeometry::IsUnderLocation(const FVector2D& Absolute) const
{
	const FVector2D Local = AbsoluteToLocal(Absolute);
	return Local.X >= 0.0 && Local.Y >= 0.0 && Local.X < Size.X && Local.Y < Size.Y;
}

FSlateRect FGeometry::GetLayoutBoundingRect() const
{
	return BoundTransformedBox(Size, FSlateRenderTransform(Layout.Scale, Layout.Translation));
}

FSlateRect FGeometry::GetRenderBoundingRect() const
{
	return BoundTransformedBox(Size, Render);
}

bool FGeometry::operator==(const FGeometry& Other) const
{
	return Size == Other.Size && Layout == Other.Layout && Render == Other.Render;
}
