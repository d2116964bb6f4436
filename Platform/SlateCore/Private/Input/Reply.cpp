// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Input/Reply.h"

#include "Widgets/SWidget.h"

FReply& FReply::CaptureMouse(const TSharedRef<SWidget>& InMouseCaptor)
{
	MouseCaptor = InMouseCaptor;
	return *this;
}

FReply& FReply::ReleaseMouseCapture()
{
	bReleaseMouseCapture = true;
	return *this;
}

FReply& FReply::SetUserFocus(const TSharedRef<SWidget>& GiveMeFocus, EFocusCause ReasonFocusIsChanging)
{
	FocusRecipient = GiveMeFocus;
	FocusCause = ReasonFocusIsChanging;
	return *this;
}
