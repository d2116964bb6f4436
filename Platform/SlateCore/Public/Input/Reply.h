// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Types/SlateEnums.h"

class SWidget;

/** What a widget answers to an input event: whether it is done with, and what the application shall do. */
class FReply
{
public:
	static FReply Handled() { return FReply(true); }
	static FReply Unhandled() { return FReply(false); }

	/** All further mouse events go to this widget until released. */
	FReply& CaptureMouse(const TSharedRef<SWidget>& InMouseCaptor);
	FReply& ReleaseMouseCapture();
	FReply& SetUserFocus(const TSharedRef<SWidget>& GiveMeFocus, EFocusCause ReasonFocusIsChanging = EFocusCause::SetDirectly);

	bool IsEventHandled() const { return bIsHandled; }
	const TSharedPtr<SWidget>& GetMouseCaptor() const { return MouseCaptor; }
	bool ShouldReleaseMouse() const { return bReleaseMouseCapture; }
	const TSharedPtr<SWidget>& GetUserFocusRecepient() const { return FocusRecipient; }
	EFocusCause GetFocusCause() const { return FocusCause; }

private:
	explicit FReply(bool bInIsHandled)
		: bIsHandled(bInIsHandled)
	{
	}

	TSharedPtr<SWidget> MouseCaptor;
	TSharedPtr<SWidget> FocusRecipient;
	EFocusCause FocusCause = EFocusCause::SetDirectly;
	bool bIsHandled;
	bool bReleaseMouseCapture = false;
};
