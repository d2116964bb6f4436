// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/Layout/SScrollBox.h"

#include "Widgets/Layout/ScrollBar.h"

namespace
{
/** A page leaves this much of the former one in view, in units. */
constexpr double PageOverlap = 32.0;
} // namespace

FReply SScrollBox::OnMouseWheel(const FGeometry&, const FPointerEvent& MouseEvent)
{
	return ScrollByUser(Bar->GetOffset() - MouseEvent.GetWheelDelta() * FScrollBar::WheelNotchLength);
}

FReply SScrollBox::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	const double Page = FMath::Max(Bar->GetViewLength() - PageOverlap, Bar->GetViewLength() / 2.0);
	const FKey& Key = InKeyEvent.GetKey();
	if (Key == EKeys::PageUp)
	{
		return ScrollByUser(Bar->GetOffset() - Page);
	}
	if (Key == EKeys::PageDown)
	{
		return ScrollByUser(Bar->GetOffset() + Page);
	}
	if (Key == EKeys::Home)
	{
		return ScrollByUser(0.0);
	}
	if (Key == EKeys::End)
	{
		return ScrollByUser(Bar->GetOffsetOfEnd());
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

FReply SScrollBox::ScrollByUser(double NewOffset)
{
	const double Former = Bar->GetOffset();
	SetScrollOffset(static_cast<float>(NewOffset));
	// At its end it leaves the rest to what it stands in.
	return Bar->GetOffset() != Former ? FReply::Handled() : FReply::Unhandled();
}

FReply SScrollBox::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (!Bar->OnMouseButtonDown(MyGeometry, MouseEvent))
	{
		return SPanel::OnMouseButtonDown(MyGeometry, MouseEvent);
	}
	bScrollToEnd = false;
	return FReply::Handled().CaptureMouse(AsShared());
}

FReply SScrollBox::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (!Bar->OnMouseMove(MyGeometry, MouseEvent))
	{
		return SPanel::OnMouseMove(MyGeometry, MouseEvent);
	}
	bScrollToEnd = false;
	return FReply::Handled();
}

FReply SScrollBox::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return Bar->OnMouseButtonUp(MouseEvent) ? FReply::Handled().ReleaseMouseCapture() : SPanel::OnMouseButtonUp(MyGeometry, MouseEvent);
}

void SScrollBox::OnMouseCaptureLost()
{
	Bar->OnMouseCaptureLost();
}

void SScrollBox::OnMouseLeave(const FPointerEvent&)
{
	Bar->OnMouseLeave();
}
