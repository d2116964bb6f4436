// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Application/SlateMouse.h"

#include "Framework/Application/SlateApplication.h"
#include "Framework/Application/SlateHitTest.h"
#include "Framework/Application/SlateFocus.h"
#include "Widgets/SWindow.h"

bool FSlateMouse::Move(SWindow& Window, const FPointerEvent& Event)
{
	const TArray<FArrangedWidget> Path = FindTargets(Window, Event);
	const FReply Reply = Route(Path, Event,
		[](const FArrangedWidget& Target, const FPointerEvent& Move) { return Target.Widget->OnMouseMove(Target.Geometry, Move); });
	UpdateCursor(Path, Event);
	return Reply.IsEventHandled();
}

bool FSlateMouse::ButtonDown(SWindow& Window, const FPointerEvent& Event)
{
	const TArray<FArrangedWidget> Path = FindTargets(Window, Event);
	return RouteButtonDown(Path, Event).IsEventHandled();
}

FReply FSlateMouse::RouteButtonDown(const TArray<FArrangedWidget>& Path, const FPointerEvent& Event)
{
	const bool bWasCaptured = Captor.IsValid();
	const FReply Reply = Route(Path, Event,
		[](const FArrangedWidget& Target, const FPointerEvent& Down) { return Target.Widget->OnMouseButtonDown(Target.Geometry, Down); });
	if (!bWasCaptured && !Reply.GetUserFocusRecepient().IsValid())
	{
		FocusUnderMouse(Path);
	}
	return Reply;
}

bool FSlateMouse::ButtonUp(SWindow& Window, const FPointerEvent& Event)
{
	const TArray<FArrangedWidget> Path = FindTargets(Window, Event);
	const FReply Reply = Route(Path, Event,
		[](const FArrangedWidget& Target, const FPointerEvent& Up) { return Target.Widget->OnMouseButtonUp(Target.Geometry, Up); });
	Refresh();
	return Reply.IsEventHandled();
}

bool FSlateMouse::DoubleClick(SWindow& Window, const FPointerEvent& Event)
{
	const TArray<FArrangedWidget> Path = FindTargets(Window, Event);
	const FReply Reply = Route(Path, Event,
		[](const FArrangedWidget& Target, const FPointerEvent& Click)
		{ return Target.Widget->OnMouseButtonDoubleClick(Target.Geometry, Click); });
	return Reply.IsEventHandled() || RouteButtonDown(Path, Event).IsEventHandled();
}

bool FSlateMouse::Wheel(SWindow& Window, const FPointerEvent& Event)
{
	const TArray<FArrangedWidget> Path = FindTargets(Window, Event);
	return Route(Path, Event,
		[](const FArrangedWidget& Target, const FPointerEvent& Turn) { return Target.Widget->OnMouseWheel(Target.Geometry, Turn); })
		.IsEventHandled();
}

void FSlateMouse::Leave(SWindow& Window)
{
	if (!LastMove.IsSet() || !RestingIn.HasSameObject(&Window))
	{
		return;
	}
	const FPointerEvent Event = LastMove.GetValue();
	LastMove.Reset();
	RestingIn.Reset();
	UpdateHover({}, Event);
}

void FSlateMouse::Refresh()
{
	DropLostCaptor();
	const TSharedPtr<SWidget> Window = RestingIn.Pin();
	if (Window.IsValid() && LastMove.IsSet())
	{
		const FPointerEvent Event = LastMove.GetValue();
		const TArray<FArrangedWidget> Path = FindTargets(static_cast<SWindow&>(*Window), Event);
		UpdateCursor(Path, Event);
	}
}

void FSlateMouse::Capture(const TSharedRef<SWidget>& Widget)
{
	if (GetCaptor() == Widget)
	{
		return;
	}
	ReleaseCapture();
	Captor = Widget;
}

void FSlateMouse::ReleaseCapture()
{
	const TSharedPtr<SWidget> Former = GetCaptor();
	Captor.Reset();
	if (Former.IsValid())
	{
		Former->OnMouseCaptureLost();
	}
}

void FSlateMouse::DropLostCaptor()
{
	const TSharedPtr<SWidget> Former = GetCaptor();
	if (Former.IsValid() && !FSlateFocus::IsReachable(*Former))
	{
		ReleaseCapture();
	}
}

TArray<FArrangedWidget> FSlateMouse::FindTargets(SWindow& Window, const FPointerEvent& Event)
{
	DropLostCaptor();
	RestingIn = Window.AsShared();
	LastMove = Event;
	TArray<FArrangedWidget> Path = FSlateHitTest::FindPath(Window, Event.GetScreenSpacePosition());
	UpdateHover(Path, Event);
	return Path;
}

FReply FSlateMouse::Route(const TArray<FArrangedWidget>& Path, const FPointerEvent& Event, const FHandler& Handler)
{
	if (const TSharedPtr<SWidget> Owner = GetCaptor(); Owner.IsValid())
	{
		const FReply Reply = Handler(FArrangedWidget(Owner.ToSharedRef(), Owner->GetCachedGeometry()), Event);
		Application.ProcessReply(Reply);
		return Reply;
	}
	for (int32 Index = Path.Num() - 1; Index >= 0; --Index)
	{
		const FReply Reply = Handler(Path[Index], Event);
		if (Reply.IsEventHandled())
		{
			Application.ProcessReply(Reply);
			return Reply;
		}
	}
	return FReply::Unhandled();
}

void FSlateMouse::UpdateHover(TArray<FArrangedWidget> Path, const FPointerEvent& Event)
{
	// Nothing but the captor, and what it stands in, feels the mouse.
	if (const TSharedPtr<SWidget> Owner = GetCaptor(); Owner.IsValid())
	{
		const int32 OwnerIndex = Path.IndexOfByPredicate([&Owner](const FArrangedWidget& Entry) { return Owner == Entry.Widget; });
		Path.RemoveAt(OwnerIndex + 1, Path.Num() - OwnerIndex - 1);
	}
	const TArray<TWeakPtr<SWidget>> Former = MoveTemp(Hovered);
	Hovered.Empty();
	for (const FArrangedWidget& Entry : Path)
	{
		Hovered.Add(Entry.Widget);
	}
	for (int32 Index = Former.Num() - 1; Index >= 0; --Index)
	{
		const TSharedPtr<SWidget> Left = Former[Index].Pin();
		if (Left.IsValid() && !Hovered.Contains(Former[Index]))
		{
			Left->bIsHovered = false;
			Left->OnMouseLeave(Event);
		}
	}
	for (const FArrangedWidget& Entry : Path)
	{
		if (!Former.Contains(TWeakPtr<SWidget>(Entry.Widget)))
		{
			Entry.Widget->bIsHovered = true;
			Entry.Widget->OnMouseEnter(Entry.Geometry, Event);
		}
	}
}

void FSlateMouse::UpdateCursor(const TArray<FArrangedWidget>& Path, const FPointerEvent& Event)
{
	FCursorReply Wish = FCursorReply::Unhandled();
	if (const TSharedPtr<SWidget> Owner = GetCaptor(); Owner.IsValid())
	{
		Wish = Owner->OnCursorQuery(Owner->GetCachedGeometry(), Event);
	}
	for (int32 Index = Path.Num() - 1; Index >= 0 && !Wish.IsEventHandled(); --Index)
	{
		Wish = Path[Index].Widget->OnCursorQuery(Path[Index].Geometry, Event);
	}
	if (Wish.GetCursorType() != Cursor)
	{
		Cursor = Wish.GetCursorType();
		Application.GetDesktop().SetCursor(Cursor);
	}
}

void FSlateMouse::FocusUnderMouse(const TArray<FArrangedWidget>& Path)
{
	for (int32 Index = Path.Num() - 1; Index >= 0; --Index)
	{
		if (Path[Index].Widget->SupportsKeyboardFocus())
		{
			Application.SetKeyboardFocus(Path[Index].Widget, EFocusCause::Mouse);
			return;
		}
	}
}
