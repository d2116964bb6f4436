// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Application/SlateDesktop.h"
#include "Fonts/TextShaper.h"
#include "FrameLoop.h"

class QSlateWidget;

/** What becomes of an address that the program opens. */
enum class EBrowserMode : uint8
{
	/** It goes to the system's browser. */
	Open,
	/** It is only noted; no other program starts. */
	Record
};

/**
 * The desktop that widgets run on, by Qt. There is one, made after the QApplication and shut down before it goes; it brings GEditor and
 * the Slate application up and down.
 */
class FDesktopApplication : public ISlateDesktop
{
public:
	static TSharedRef<FDesktopApplication> Create(EBrowserMode BrowserMode);
	static void Shutdown();
	static FDesktopApplication& Get();

	explicit FDesktopApplication(EBrowserMode InBrowserMode);
	~FDesktopApplication() override;

	FFrameLoop& GetFrameLoop() { return FrameLoop; }

	/** Nothing is left to lay out or to paint. */
	bool IsIdle() const { return FrameLoop.IsIdle(); }

	/** What was opened so far, in either mode. */
	const TArray<FString>& GetOpenedAddresses() const { return OpenedAddresses; }

	/** False, with the reason, for an address that is not of the web and no mail address. */
	bool OpenAddress(const FString& Address, FString& OutError);

	/** The host in which input happens now gets the cursor's shape and composes text. */
	void SetActiveHost(QSlateWidget* Host);
	void ForgetHost(const QSlateWidget* Host);

	ITextShaper& GetTextShaper() override { return *TextShaper; }
	FString GetClipboardText() override;
	void SetClipboardText(const FString& Text) override;
	void RequestFrame() override { FrameLoop.RequestFrame(); }
	void SetCursor(EMouseCursor::Type Cursor) override;
	void SetTextInputArea(bool bEnabled, const FSlateRect& CaretRect) override;

private:
	EBrowserMode BrowserMode;
	FFrameLoop FrameLoop;
	TUniquePtr<ITextShaper> TextShaper;
	TArray<FString> OpenedAddresses;
	QSlateWidget* ActiveHost = nullptr;
	/** Unset while no text can be composed. */
	TOptional<FSlateRect> TextInputArea;
};
