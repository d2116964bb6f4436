// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/Layout/SScrollBox.h"

namespace
{
/** In units. */
constexpr float WheelNotchLength = 48.0f;
constexpr float MinThumbLength = 24.0f;
/** A page leaves this much of the former one in view. */
constexpr float PageOverlap = 32.0f;
} // namespace

FReply SScrollBox::OnMouseWheel(const FGeometry&, const FPointerEvent& MouseEvent)
{
	return ScrollByUser(ScrollOffset - MouseEvent.GetWheelDelta() * WheelNotchLength);
}

FReply SScrollBox::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	const float Page = FMath::Max(ViewLength - PageOverlap, ViewLength / 2.0f);
	const FKey& Key = InKeyEvent.GetKey();
	if (Key == EKeys::PageUp)
	{
		return ScrollByUser(ScrollOffset - Page);
	}
	if (Key == EKeys::PageDown)
	{
		return ScrollByUser(ScrollOffset + Page);
	}
	if (Key == EKeys::Home)
	{
		return ScrollByUser(0.0f);
	}
	if (Key == EKeys::End)
	{
		return ScrollByUser(GetScrollOffsetOfEnd());
	}
	return SPanel::OnKeyDown(MyGeometry, InKeyEvent);
}

void SScrollBox::OnFocusChanging(const TSharedRef<SWidget>& NewFocused, const FFocusEvent& InFocusEvent)
{
	// What was clicked can be seen already.
	if (InFocusEvent.GetCause() == EFocusCause::Navigation)
	{
		ScrollDescendantIntoView(NewFocused);
	}
}

FReply SScrollBox::ScrollByUser(float NewOffset)
{
	const float Former = ScrollOffset;
	SetScrollOffset(NewOffset);
	// At its end it leaves the rest to what it stands in.
	return ScrollOffset != Former ? FReply::Handled() : FReply::Unhandled();
}

SScrollBox::FThumb SScrollBox::GetThumb() const
{
	const float Length = FMath::Min(ViewLength, FMath::Max(MinThumbLength, ViewLength * ViewLength / ContentLength));
	const float End = GetScrollOffsetOfEnd();
	return {End > 0.0f ? (ViewLength - Length) * ScrollOffset / End : 0.0f, Length};
}

bool SScrollBox::IsInBar(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) const
{
	const FVector2D Local = MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition());
	return IsBarShown() && Local.X >= MyGeometry.GetLocalSize().X - GetBarThickness() && Local.X < MyGeometry.GetLocalSize().X;
}

FReply SScrollBox::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton || !IsInBar(MyGeometry, MouseEvent))
	{
		return SPanel::OnMouseButtonDown(MyGeometry, MouseEvent);
	}
	const FThumb Thumb = GetThumb();
	const float LocalY = static_cast<float>(MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition()).Y);
	const bool bOnThumb = LocalY >= Thumb.Offset && LocalY < Thumb.Offset + Thumb.Length;
	// Beside the thumb, it jumps to the mouse.
	DragGrip = bOnThumb ? LocalY - Thumb.Offset : Thumb.Length / 2.0f;
	DragThumbTo(LocalY);
	Invalidate(EInvalidateWidgetReason::Paint);
	return FReply::Handled().CaptureMouse(AsShared());
}

FReply SScrollBox::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (!DragGrip.IsSet())
	{
		SetBarHovered(IsInBar(MyGeometry, MouseEvent));
		return SPanel::OnMouseMove(MyGeometry, MouseEvent);
	}
	DragThumbTo(static_cast<float>(MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition()).Y));
	return FReply::Handled();
}

void SScrollBox::DragThumbTo(float LocalY)
{
	const float Way = ViewLength - GetThumb().Length;
	if (Way > 0.0f)
	{
		SetScrollOffset((LocalY - DragGrip.GetValue()) / Way * GetScrollOffsetOfEnd());
	}
}

FReply SScrollBox::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (!DragGrip.IsSet() || MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return SPanel::OnMouseButtonUp(MyGeometry, MouseEvent);
	}
	return FReply::Handled().ReleaseMouseCapture();
}

void SScrollBox::OnMouseCaptureLost()
{
	DragGrip.Reset();
	Invalidate(EInvalidateWidgetReason::Paint);
}

void SScrollBox::OnMouseLeave(const FPointerEvent&)
{
	SetBarHovered(false);
}

void SScrollBox::SetBarHovered(bool bInHovered)
{
	if (bBarHovered != bInHovered)
	{
		bBarHovered = bInHovered;
		Invalidate(EInvalidateWidgetReason::Paint);
	}
}
