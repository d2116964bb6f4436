// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Application/SlateDesktop.h"
#include "CoreMinimal.h"
#include "Input/Events.h"
#include "Rendering/SlateRenderer.h"
#include "Types/SlateEnums.h"

class FReply;
class FSlateFocus;
class FSlateFrame;
class FSlateMouse;
class SWidget;
class SWindow;

/** What the last frame did; what is clean is not counted, as it was not touched. */
struct FSlateFrameStats
{
	int32 NumDesiredSizes = 0;
	int32 NumArranged = 0;
	int32 NumPainted = 0;
	int32 NumAttributesRead = 0;
	int32 NumTicked = 0;
	int32 NumLayoutPasses = 0;
};

/**
 * All windows, the focus, the mouse, and the frame. Input enters through the Process... functions; each answers whether a widget took it.
 * Nothing here reads a clock or waits: the desktop calls Tick when a frame was asked for.
 */
class FSlateApplication
{
public:
	static TSharedRef<FSlateApplication> Create(const TSharedRef<ISlateDesktop>& InDesktop);
	static void Shutdown();
	static bool IsInitialized();
	static FSlateApplication& Get();

	~FSlateApplication();

	void AddWindow(const TSharedRef<SWindow>& Window);
	void RemoveWindow(const TSharedRef<SWindow>& Window);

	/** Null for a widget that is part of none. */
	TSharedPtr<SWindow> FindWidgetWindow(const TSharedRef<const SWidget>& Widget) const;

	/** One frame of all windows. */
	void Tick(float DeltaTime);
	double GetCurrentTime() const { return CurrentTime; }

	/** Asks the desktop for a frame, once until the next. */
	void RequestFrame();

	/** Whether a frame was asked for and has not run. */
	bool IsFrameRequested() const { return bFrameRequested; }
	const FSlateFrameStats& GetFrameStats() const;

	/** Counts frames, from 1; 0 before the first. */
	uint64 GetFrameNumber() const;

	bool ProcessMouseMoveEvent(const TSharedRef<SWindow>& Window, const FPointerEvent& MouseEvent);
	bool ProcessMouseButtonDownEvent(const TSharedRef<SWindow>& Window, const FPointerEvent& MouseEvent);
	bool ProcessMouseButtonUpEvent(const TSharedRef<SWindow>& Window, const FPointerEvent& MouseEvent);
	bool ProcessMouseButtonDoubleClickEvent(const TSharedRef<SWindow>& Window, const FPointerEvent& MouseEvent);
	bool ProcessMouseWheelEvent(const TSharedRef<SWindow>& Window, const FPointerEvent& MouseEvent);
	/** The mouse left the window, or the window lost the mouse. */
	void ProcessMouseLeaveEvent(const TSharedRef<SWindow>& Window);
	bool ProcessKeyDownEvent(const TSharedRef<SWindow>& Window, const FKeyEvent& KeyEvent);
	bool ProcessKeyUpEvent(const TSharedRef<SWindow>& Window, const FKeyEvent& KeyEvent);
	bool ProcessKeyCharEvent(const TSharedRef<SWindow>& Window, const FCharacterEvent& CharacterEvent);
	bool ProcessTextCompositionEvent(const TSharedRef<SWindow>& Window, const FTextCompositionEvent& CompositionEvent);

	/** The widget must be part of a window. */
	void SetKeyboardFocus(const TSharedPtr<SWidget>& Widget, EFocusCause Cause = EFocusCause::SetDirectly);
	void ClearKeyboardFocus(EFocusCause Cause = EFocusCause::SetDirectly);
	TSharedPtr<SWidget> GetKeyboardFocusedWidget() const;
	TSharedPtr<SWidget> GetMouseCaptor() const;

	/** Where the focused widget takes text; the rectangle is absolute. A widget that takes none is not obliged to say so. */
	void SetTextInputArea(bool bEnabled, const FSlateRect& CaretRect);

	FSlateRenderer* GetRenderer() { return &Renderer; }
	ISlateDesktop& GetDesktop() { return *Desktop; }

private:
	friend class FSlateFocus;
	friend class FSlateMouse;

	explicit FSlateApplication(const TSharedRef<ISlateDesktop>& InDesktop);

	void ProcessReply(const FReply& Reply);

	TSharedRef<ISlateDesktop> Desktop;
	FSlateRenderer Renderer;
	TArray<TSharedRef<SWindow>> Windows;
	TUniquePtr<FSlateFocus> Focus;
	TUniquePtr<FSlateMouse> Mouse;
	TUniquePtr<FSlateFrame> Frame;
	double CurrentTime = 0.0;
	bool bFrameRequested = false;
	bool bInFrame = false;
};
