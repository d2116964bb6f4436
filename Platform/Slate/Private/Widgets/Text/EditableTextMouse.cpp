// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "EditableTextMouse.h"

#include "EditableTextController.h"
#include "Framework/Application/SlateApplication.h"
#include "Input/Events.h"
#include "Input/Reply.h"
#include "Layout/Geometry.h"

namespace
{
/** Seconds and device pixels within which a third click belongs to the two before it. */
constexpr double ThirdClickTime = 0.5;
constexpr double ThirdClickDistance = 5.0;

/** Seconds between two steps while the mouse is held outside, and the part of the way outside that a step scrolls. */
constexpr float ScrollInterval = 0.03f;
constexpr double ScrollSpeed = 0.5;

/** How far the wheel scrolls. */
constexpr double LinesPerNotch = 3.0;

FVector2D FindPositionInView(const FGeometry& Geometry, const FPointerEvent& Event)
{
	return Geometry.AbsoluteToLocal(Event.GetScreenSpacePosition()) * Geometry.GetScale();
}

double FindOvershootOnAxis(double Position, double Size)
{
	return Position < 0.0 ? Position : FMath::Max(Position - Size, 0.0);
}
} // namespace

FReply FEditableTextMouse::OnMouseButtonDown(const TSharedRef<SWidget>& Widget, const FGeometry& Geometry, const FPointerEvent& Event)
{
	if (Event.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}
	Press(FindPositionInView(Geometry, Event), Event.IsShiftDown());
	return FReply::Handled().SetUserFocus(Widget, EFocusCause::Mouse).CaptureMouse(Widget);
}

FReply FEditableTextMouse::OnMouseButtonDoubleClick(
	const TSharedRef<SWidget>& Widget, const FGeometry& Geometry, const FPointerEvent& Event)
{
	if (Event.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}
	DoubleClickTime = FSlateApplication::Get().GetCurrentTime();
	DoubleClickPosition = FindPositionInView(Geometry, Event);
	BeginDrag(EUnit::Word, DoubleClickPosition);
	return FReply::Handled().SetUserFocus(Widget, EFocusCause::Mouse).CaptureMouse(Widget);
}

FReply FEditableTextMouse::OnMouseMove(const FGeometry& Geometry, const FPointerEvent& Event)
{
	if (!bIsDragging)
	{
		return FReply::Unhandled();
	}
	const FVector2D Position = FindPositionInView(Geometry, Event);
	if (Position != LastPosition)
	{
		LastPosition = Position;
		ExtendTo(Position);
		ScrollWhileOutside();
	}
	return FReply::Handled();
}

FReply FEditableTextMouse::OnMouseButtonUp(const FPointerEvent& Event)
{
	if (!bIsDragging || Event.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}
	EndDrag();
	return FReply::Handled().ReleaseMouseCapture();
}

FReply FEditableTextMouse::OnMouseWheel(const FPointerEvent& Event)
{
	const FSlateRect Caret = Controller.GetCaretArea();
	const double Distance = -Event.GetWheelDelta() * LinesPerNotch * (Caret.Bottom - Caret.Top);
	const bool bSideways = Event.IsShiftDown();
	const bool bScrolled = Controller.ScrollBy(bSideways ? FVector2D(Distance, 0.0) : FVector2D(0.0, Distance));
	return bScrolled ? FReply::Handled() : FReply::Unhandled();
}

void FEditableTextMouse::Press(const FVector2D& Position, bool bExtendSelection)
{
	if (IsThirdClick(Position))
	{
		BeginDrag(EUnit::Line, Position);
		return;
	}
	const FTextLocation Anchor = Controller.GetText().GetAnchor();
	BeginDrag(EUnit::Character, Position);
	if (bExtendSelection)
	{
		Origin = FTextSelection(Anchor, Anchor);
		ExtendTo(Position);
	}
}

bool FEditableTextMouse::IsThirdClick(const FVector2D& Position) const
{
	const double Elapsed = FSlateApplication::Get().GetCurrentTime() - DoubleClickTime;
	return DoubleClickTime >= 0.0 && Elapsed <= ThirdClickTime && (Position - DoubleClickPosition).Size() <= ThirdClickDistance;
}

void FEditableTextMouse::BeginDrag(EUnit InUnit, const FVector2D& Position)
{
	if (InUnit != EUnit::Word)
	{
		DoubleClickTime = -1.0;
	}
	bIsDragging = true;
	Unit = InUnit;
	LastPosition = Position;
	Origin = FindUnit(Position);
	if (Unit == EUnit::Character)
	{
		Controller.PlaceCaret(Controller.GetCaretAt(Position), false);
		return;
	}
	Controller.Select(Origin.GetBeginning(), Origin.GetEnd());
}

void FEditableTextMouse::ScrollWhileOutside()
{
	if (!FindOvershoot().IsZero() && !ScrollTicker.IsValid())
	{
		const FTickerDelegate Step = FTickerDelegate::CreateRaw(this, &FEditableTextMouse::ScrollTowards);
		ScrollTicker = FTSTicker::GetCoreTicker().AddTicker(Step, ScrollInterval);
	}
}

void FEditableTextMouse::ExtendTo(const FVector2D& Position)
{
	const FTextSelection Here = FindUnit(Position);
	if (Here.GetBeginning() < Origin.GetBeginning())
	{
		Controller.Select(Origin.GetEnd(), Here.GetBeginning());
		return;
	}
	Controller.Select(Origin.GetBeginning(), FMath::Max(Here.GetEnd(), Origin.GetEnd()));
}

FTextSelection FEditableTextMouse::FindUnit(const FVector2D& Position) const
{
	if (Unit == EUnit::Character)
	{
		const FTextLocation Caret = Controller.GetCaretAt(Position).Location;
		return FTextSelection(Caret, Caret);
	}
	const FTextLocation Location = Controller.GetCharacterAt(Position);
	const int32 Line = Location.GetLineIndex();
	const FTextRange Range = Unit == EUnit::Word ? Controller.GetText().FindWordAt(Location)
												 : FTextRange(0, Controller.GetText().GetLayout().GetLineText(Line).Len());
	return FTextSelection(FTextLocation(Line, Range.BeginIndex), FTextLocation(Line, Range.EndIndex));
}

bool FEditableTextMouse::ScrollTowards(float DeltaTime)
{
	const bool bScrolled = bIsDragging && Controller.ScrollBy(FindOvershoot() * ScrollSpeed);
	if (!bScrolled)
	{
		ScrollTicker.Reset();
		return false;
	}
	ExtendTo(LastPosition);
	return true;
}

FVector2D FEditableTextMouse::FindOvershoot() const
{
	const FVector2D& View = Controller.GetScroller().GetView();
	return FVector2D(FindOvershootOnAxis(LastPosition.X, View.X), FindOvershootOnAxis(LastPosition.Y, View.Y));
}

void FEditableTextMouse::EndDrag()
{
	bIsDragging = false;
	FTSTicker::RemoveTicker(ScrollTicker);
	ScrollTicker.Reset();
}
