// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Application/SlateApplication.h"
#include "Styling/SlateTypes.h"
#include "Support/UserDriver.h"
#include "TextScreen.h"
#include "Widgets/SWindow.h"
#include "Widgets/Text/SMultiLineEditableText.h"

#include <gtest/gtest.h>

/** A text, a width in letters, and what the screen shows; in UTF-8. */
struct FWrapCase
{
	const char* Text;
	int32 Width;
	const char* Screen;
};

/** A user before a window with one text in it. Its letters are 10 wide and 20 high. */
class FTextTest : public testing::Test, public FUserDriver
{
protected:
	FTextTest();

	static constexpr float Letter = 10.0f;
	static constexpr float Row = 20.0f;
	static constexpr float Points = 12.5f;

	/** Puts a widget into the window, which gets the size, in units. */
	void Show(const TSharedRef<SWidget>& Content, float Width = 1000.0f, float Height = 400.0f, float Scale = 1.0f);

	/** An editable text in the window; by its arguments it may be anything else. */
	SMultiLineEditableText::FArguments Arguments();
	SMultiLineEditableText::FArguments ReadOnly(const FString& InText);
	void ShowText(const SMultiLineEditableText::FArguments& Args, float Width = 1000.0f, float Height = 400.0f, float Scale = 1.0f);
	void ShowText(const char* InText, float Width = 1000.0f, float Height = 400.0f);

	/** What is on the screen now; see FTextScreen. */
	FString Screen() { return ReadScreen().ToString(); }
	FTextScreen ReadScreen();
	FString Typed() const { return Text->GetText().ToString(); }

	// What the user does. Rows and columns count letters; a click hits the left edge of one.
	void Focus();
	void ClickLetter(int32 Column, int32 RowIndex = 0);
	void DoubleClickLetter(int32 Column, int32 RowIndex = 0);
	void Compose(const TCHAR* Composition, const TCHAR* Commit = TEXT(""), int32 ReplaceFrom = 0, int32 ReplaceLength = 0);

	static FSlateApplication& Application() { return FSlateApplication::Get(); }

	TSharedPtr<SMultiLineEditableText> Text;
	FTextBlockStyle Style;
};
