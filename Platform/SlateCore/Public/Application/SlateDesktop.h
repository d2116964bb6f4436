// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/ICursor.h"
#include "Layout/SlateRect.h"

class ITextShaper;

/** What the application needs of the machine it runs on. All calls come on the game thread. */
class ISlateDesktop
{
public:
	virtual ~ISlateDesktop() = default;

	virtual ITextShaper& GetTextShaper() = 0;

	virtual FString GetClipboardText() = 0;
	virtual void SetClipboardText(const FString& Text) = 0;

	/** Asks for one FSlateApplication::Tick soon. Not called again before that tick. */
	virtual void RequestFrame() = 0;

	virtual void SetCursor(EMouseCursor::Type Cursor) = 0;

	/** Whether text can be composed now, and where its caret stands, in device pixels of the window. */
	virtual void SetTextInputArea(bool bEnabled, const FSlateRect& CaretRect) = 0;
};
