// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/Layout/ScrollBar.h"

namespace
{
/** In units. */
constexpr double LengthTolerance = 0.01;
constexpr float MaxThickness = 12.0f;
constexpr double MinThumbLength = 24.0;

double GetLocalY(const FGeometry& Geometry, const FPointerEvent& Event)
{
	return Geometry.AbsoluteToLocal(Event.GetScreenSpacePosition()).Y;
}
} // namespace

void FScrollBar::SetLengths(double InContentLength, double InViewLength)
{
	ContentLength = InContentLength;
	ViewLength = InViewLength;
	Offset = FMath::Clamp(Offset, 0.0, GetOffsetOfEnd());
}

void FScrollBar::SetOffset(double InOffset)
{
	const double Clamped = FMath::Clamp(InOffset, 0.0, GetOffsetOfEnd());
	if (Offset != Clamped)
	{
		Offset = Clamped;
		Owner.Invalidate(EInvalidateWidgetReason::Layout);
	}
}

bool FScrollBar::IsShown() const
{
	return ContentLength > ViewLength + LengthTolerance;
}

float FScrollBar::GetThickness() const
{
	return IsShown() ? FMath::Min(Style.Thickness, MaxThickness) : 0.0f;
}

FScrollBar::FThumb FScrollBar::GetThumb() const
{
	const double Length = FMath::Min(ViewLength, FMath::Max(MinThumbLength, ViewLength * ViewLength / ContentLength));
	const double End = GetOffsetOfEnd();
	return {End > 0.0 ? (ViewLength - Length) * Offset / End : 0.0, Length};
}

bool FScrollBar::IsUnder(const FGeometry& OwnerGeometry, const FPointerEvent& MouseEvent) const
{
	const double X = OwnerGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition()).X;
	const double Width = OwnerGeometry.GetLocalSize().X;
	return X >= Width - GetThickness() && X < Width;
}

bool FScrollBar::OnMouseButtonDown(const FGeometry& OwnerGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton || !IsUnder(OwnerGeometry, MouseEvent))
	{
		return false;
	}
	const FThumb Thumb = GetThumb();
	const double LocalY = GetLocalY(OwnerGeometry, MouseEvent);
	const bool bOnThumb = LocalY >= Thumb.Offset && LocalY < Thumb.Offset + Thumb.Length;
	// Beside the thumb, it jumps to the mouse.
	DragGrip = bOnThumb ? LocalY - Thumb.Offset : Thumb.Length / 2.0;
	DragThumbTo(LocalY);
	Owner.Invalidate(EInvalidateWidgetReason::Paint);
	return true;
}

bool FScrollBar::OnMouseMove(const FGeometry& OwnerGeometry, const FPointerEvent& MouseEvent)
{
	if (!DragGrip.IsSet())
	{
		SetHovered(IsUnder(OwnerGeometry, MouseEvent));
		return false;
	}
	DragThumbTo(GetLocalY(OwnerGeometry, MouseEvent));
	return true;
}

bool FScrollBar::OnMouseButtonUp(const FPointerEvent& MouseEvent) const
{
	return DragGrip.IsSet() && MouseEvent.GetEffectingButton() == EKeys::LeftMouseButton;
}

void FScrollBar::OnMouseCaptureLost()
{
	DragGrip.Reset();
	Owner.Invalidate(EInvalidateWidgetReason::Paint);
}

void FScrollBar::DragThumbTo(double LocalY)
{
	const double Way = ViewLength - GetThumb().Length;
	if (Way > 0.0)
	{
		SetOffset((LocalY - DragGrip.GetValue()) / Way * GetOffsetOfEnd());
	}
}

void FScrollBar::SetHovered(bool bInHovered)
{
	if (bHovered != bInHovered)
	{
		bHovered = bInHovered;
		Owner.Invalidate(EInvalidateWidgetReason::Paint);
	}
}

void FScrollBar::Paint(
	const FGeometry& OwnerGeometry, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle) const
{
	if (!IsShown())
	{
		return;
	}
	const double Left = OwnerGeometry.GetLocalSize().X - GetThickness();
	const auto DrawPart = [&](const FSlateBrush& Brush, const FThumb& Part)
	{
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId,
			OwnerGeometry.ToPaintGeometry(FVector2D(GetThickness(), Part.Length), FSlateLayoutTransform(FVector2D(Left, Part.Offset))),
			&Brush, ESlateDrawEffect::None, InWidgetStyle.GetColorAndOpacityTint() * Brush.GetTint(InWidgetStyle));
	};
	DrawPart(Style.VerticalBackgroundImage, {0.0, ViewLength});
	DrawPart(DragGrip.IsSet() ? Style.DraggedThumbImage : (bHovered ? Style.HoveredThumbImage : Style.NormalThumbImage), GetThumb());
}
