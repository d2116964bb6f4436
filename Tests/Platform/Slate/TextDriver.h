// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Application/SlateApplication.h"
#include "Input/Events.h"
#include "Styling/SlateTypes.h"
#include "TextScreen.h"
#include "Widgets/SWindow.h"
#include "Widgets/Text/SMultiLineEditableText.h"

#include "Support/Printers.h"

#include <gtest/gtest.h>

/** A window with one text in it, and a user before it. The font is 10 wide and 20 high. */
class FTextTest : public testing::Test
{
protected:
	FTextTest();
	virtual ~FTextTest() override;

	static constexpr float Letter = 10.0f;
	static constexpr float Row = 20.0f;

	static FTextBlockStyle MakeStyle();

	/** Puts a widget into the window, which gets the size, in units. */
	void Show(const TSharedRef<SWidget>& Content, float Width = 1000.0f, float Height = 400.0f, float Scale = 1.0f);
	void Frame(float Seconds = 0.0f);

	/** An editable text in the window; by its arguments it may be anything else. */
	SMultiLineEditableText::FArguments Arguments();
	void ShowText(const FString& Text, float Width = 1000.0f, float Height = 400.0f);
	void ShowText(const SMultiLineEditableText::FArguments& Args, float Width = 1000.0f, float Height = 400.0f, float Scale = 1.0f);

	/** What is on the screen now; see FTextScreen. */
	FString Screen();
	FTextScreen ReadScreen();
	/** What was typed. */
	FString Typed() const { return Text->GetText().ToString(); }

	// What the user does. Rows and columns count letters; a click hits the left edge of one.
	void Focus();
	void Click(int32 Column, int32 RowIndex = 0, const FModifierKeysState& Modifiers = {});
	void DoubleClick(int32 Column, int32 RowIndex = 0);
	void Press(float X, float Y, const FModifierKeysState& Modifiers = {});
	void MoveMouse(float X, float Y);
	void Release();
	bool Wheel(float Notches);
	void Key(const FKey& InKey, const FModifierKeysState& Modifiers = {});
	void Keys(const FKey& InKey, int32 Count, const FModifierKeysState& Modifiers = {});
	void Type(const TCHAR* Characters);
	void Compose(const TCHAR* Composition, const TCHAR* Commit = TEXT(""), int32 ReplaceFrom = 0, int32 ReplaceLength = 0);

	static FModifierKeysState Shift() { return FModifierKeysState(true, false, false); }
	static FModifierKeysState Control() { return FModifierKeysState(false, true, false); }
	static FModifierKeysState ControlShift() { return FModifierKeysState(true, true, false); }

	FSlateApplication& Application() const { return FSlateApplication::Get(); }

	TSharedRef<FTextTestDesktop> Desktop = MakeShared<FTextTestDesktop>();
	TSharedPtr<SWindow> Window;
	TSharedPtr<SMultiLineEditableText> Text;
	FTextBlockStyle Style = MakeStyle();

private:
	FPointerEvent MakePointer(float X, float Y, const FKey& Button, float WheelDelta = 0.0f, const FModifierKeysState& Modifiers = {});

	FVector2D MousePosition;
};
