// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/ICursor.h"
#include "Input/Events.h"
#include "Input/Reply.h"
#include "Layout/ArrangedWidget.h"

class FSlateApplication;
class SWindow;

/** The mouse: what it hovers over, who captured it, and which widget gets its events. */
class FSlateMouse
{
public:
	/** How an event is given to one widget. */
	using FHandler = TFunction<FReply(const FArrangedWidget&, const FPointerEvent&)>;

	explicit FSlateMouse(FSlateApplication& InApplication)
		: Application(InApplication)
	{
	}

	bool Move(SWindow& Window, const FPointerEvent& Event);
	bool ButtonDown(SWindow& Window, const FPointerEvent& Event);
	bool ButtonUp(SWindow& Window, const FPointerEvent& Event);
	bool DoubleClick(SWindow& Window, const FPointerEvent& Event);
	bool Wheel(SWindow& Window, const FPointerEvent& Event);
	void Leave(SWindow& Window);

	/** After a layout: what lies under the resting mouse may be another widget, and the captor may have gone. */
	void Refresh();

	TSharedPtr<SWidget> GetCaptor() const { return Captor.Pin(); }
	void Capture(const TSharedRef<SWidget>& Widget);
	void ReleaseCapture();

private:
	/** Widgets are asked from the uppermost down until one takes the event; the captor alone is asked while there is one. */
	FReply Route(const TArray<FArrangedWidget>& Path, const FPointerEvent& Event, const FHandler& Handler);
	/** A captor that is no longer part of its window gets nothing more. */
	void DropLostCaptor();
	TArray<FArrangedWidget> FindTargets(SWindow& Window, const FPointerEvent& Event);
	void UpdateHover(TArray<FArrangedWidget> Path, const FPointerEvent& Event);
	void UpdateCursor(const TArray<FArrangedWidget>& Path, const FPointerEvent& Event);
	void FocusUnderMouse(const TArray<FArrangedWidget>& Path);
	FReply RouteButtonDown(const TArray<FArrangedWidget>& Path, const FPointerEvent& Event);

	FSlateApplication& Application;
	TArray<TWeakPtr<SWidget>> Hovered;
	TWeakPtr<SWidget> Captor;
	EMouseCursor::Type Cursor = EMouseCursor::Default;

	/** Where the mouse rests; unset while it is in no window. */
	TWeakPtr<SWidget> RestingIn;
	TOptional<FPointerEvent> LastMove;
};
