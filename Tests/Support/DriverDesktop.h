// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Application/SlateDesktop.h"
#include "Fonts/TextShaper.h"

/** Which letters a test is drawn with. */
enum class EDriverFonts : uint8
{
	/** Those of the desktop. */
	Real,
	/** All alike, for exact numbers; see FEvenTextShaper. */
	Even
};

/** A machine of a test's own: nothing leaves it, and it remembers what it was told. */
class FDriverDesktop final : public ISlateDesktop
{
public:
	explicit FDriverDesktop(EDriverFonts Fonts);
	~FDriverDesktop() override;

	ITextShaper& GetTextShaper() override { return *Shaper; }
	FString GetClipboardText() override { return Clipboard; }
	void SetClipboardText(const FString& Text) override { Clipboard = Text; }
	void RequestFrame() override { ++NumFramesRequested; }
	void SetCursor(EMouseCursor::Type InCursor) override { Cursor = InCursor; }
	void SetTextInputArea(bool bEnabled, const FSlateRect& CaretRect) override;

	TArray<FString> LaunchedURLs;
	FString Clipboard;
	EMouseCursor::Type Cursor = EMouseCursor::Default;
	/** Unset while no text can be composed. */
	TOptional<FSlateRect> TextInputArea;
	int32 NumFramesRequested = 0;

private:
	TUniquePtr<ITextShaper> Shaper;
};
