// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Input/Events.h"
#include "Layout/Geometry.h"
#include "Support/DriverDesktop.h"
#include "Support/Printers.h"
#include "Types/SlateEnums.h"

class FDriverSession;
class QImage;
class SWidget;
class SWindow;

/**
 * A user before a window with a widget in it. The words act through input events alone; after each, frames run without time passing until
 * nothing is left to do. Places are in units from the window's top left corner. A text names the first widget, in the order of the tree,
 * that shows it, or has it as hint, accessible name or tag; an equal one comes before one that only contains it, and an inner one before
 * what it stands in; an open popup comes before the rest. What cannot be done fails the test, and prints the tree.
 *
 * There is one Slate application for all drivers that live at a time; the first chooses its fonts.
 */
class FUserDriver
{
public:
	FUserDriver(const TSharedRef<SWidget>& Content, const FVector2D& Size, float Scale = 1.0f, EDriverFonts Fonts = EDriverFonts::Real);
	~FUserDriver();
	FUserDriver(const FUserDriver&) = delete;
	FUserDriver& operator=(const FUserDriver&) = delete;

	// Time

	/** Runs frames until nothing is left to do, at most a few where something is animated. */
	void Frame();

	/** Runs one frame this long after the last one. */
	void AdvanceTime(float Seconds);

	// The mouse

	void Click(const FString& Text);
	void ClickAt(const FVector2D& Place);
	void DoubleClickAt(const FVector2D& Place);
	void MoveTo(const FVector2D& Place);
	void MouseDown(const FVector2D& Place, const FKey& Button = EKeys::LeftMouseButton);
	void MouseUp(const FVector2D& Place, const FKey& Button = EKeys::LeftMouseButton);
	void LeaveWindow();

	/** For what the mouse does from now on. */
	void HoldModifiers(const FModifierKeysState& InModifiers) { Modifiers = InModifiers; }

	/** Notches; negative towards the user, which scrolls down. */
	void Wheel(const FString& Text, float Notches);
	void WheelAt(const FVector2D& Place, float Notches);

	// The keyboard

	/** Characters, one by one. */
	void Type(const FString& Characters);

	/** A key with modifiers: "Shift+Enter", "Ctrl+A", "PageDown". */
	void Press(const FString& KeyWithModifiers);
	void KeyDown(const FString& KeyWithModifiers);
	void KeyUp(const FString& KeyWithModifiers);
	void ClearFocus();

	/** Keys, and between quotes what is typed: "Home 'text' Ctrl+Z". */
	void Play(const FString& Keys);

	// The window

	void Resize(const FVector2D& Size);
	void SetScale(float Scale);

	// What the user sees

	/** Null where no widget that is not collapsed matches. */
	TSharedPtr<SWidget> Find(const FString& Text) const;
	bool Sees(const FString& Text) const { return Find(Text).IsValid(); }

	/** Null where nothing has the focus. */
	TSharedPtr<SWidget> GetFocused() const;
	FString Tree() const;

	/** What is on screen, in device pixels. */
	QImage Picture();

	FString GetClipboard() const { return GetDesktop().Clipboard; }
	void SetClipboard(const FString& Text) { GetDesktop().Clipboard = Text; }

	/** The addresses opened since the last call, one a line. */
	FString TakeLaunchedURLs();

	FDriverDesktop& GetDesktop() const;
	const TSharedRef<SWindow>& GetWindow() const { return Window; }

private:
	void RunFrame(float Seconds);
	/** Where the middle of what shows a text is once nothing is left to do; fails the test where there is none. */
	TOptional<FVector2D> LocateMiddle(const FString& Text);
	FPointerEvent MakePointer(const FVector2D& Place, const FKey& Button, float WheelDelta = 0.0f) const;

	TSharedRef<FDriverSession> Session;
	TSharedRef<SWindow> Window;
	FVector2D Size;
	float Scale;
	FModifierKeysState Modifiers;
};
