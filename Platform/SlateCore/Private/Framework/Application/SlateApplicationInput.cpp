// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Application/SlateApplication.h"
#include "Framework/Application/SlateFocus.h"
#include "Framework/Application/SlateMouse.h"
#include "Widgets/SWindow.h"

// Every input may change what bound attributes yield, so each asks for a frame.

bool FSlateApplication::ProcessMouseMoveEvent(const TSharedRef<SWindow>& Window, const FPointerEvent& MouseEvent)
{
	RequestFrame();
	return Mouse->Move(*Window, MouseEvent);
}

bool FSlateApplication::ProcessMouseButtonDownEvent(const TSharedRef<SWindow>& Window, const FPointerEvent& MouseEvent)
{
	RequestFrame();
	return Mouse->ButtonDown(*Window, MouseEvent);
}

bool FSlateApplication::ProcessMouseButtonUpEvent(const TSharedRef<SWindow>& Window, const FPointerEvent& MouseEvent)
{
	RequestFrame();
	return Mouse->ButtonUp(*Window, MouseEvent);
}

bool FSlateApplication::ProcessMouseButtonDoubleClickEvent(const TSharedRef<SWindow>& Window, const FPointerEvent& MouseEvent)
{
	RequestFrame();
	return Mouse->DoubleClick(*Window, MouseEvent);
}

bool FSlateApplication::ProcessMouseWheelEvent(const TSharedRef<SWindow>& Window, const FPointerEvent& MouseEvent)
{
	RequestFrame();
	return Mouse->Wheel(*Window, MouseEvent);
}

void FSlateApplication::ProcessMouseLeaveEvent(const TSharedRef<SWindow>& Window)
{
	RequestFrame();
	Mouse->Leave(*Window);
}

bool FSlateApplication::ProcessKeyDownEvent(const TSharedRef<SWindow>& Window, const FKeyEvent& KeyEvent)
{
	RequestFrame();
	return Focus->KeyDown(*Window, KeyEvent);
}

bool FSlateApplication::ProcessKeyUpEvent(const TSharedRef<SWindow>&, const FKeyEvent& KeyEvent)
{
	RequestFrame();
	return Focus->Route([&KeyEvent](SWidget& Widget) { return Widget.OnKeyUp(Widget.GetCachedGeometry(), KeyEvent); });
}

bool FSlateApplication::ProcessKeyCharEvent(const TSharedRef<SWindow>&, const FCharacterEvent& CharacterEvent)
{
	RequestFrame();
	return Focus->Route([&CharacterEvent](SWidget& Widget) { return Widget.OnKeyChar(Widget.GetCachedGeometry(), CharacterEvent); });
}

bool FSlateApplication::ProcessTextCompositionEvent(const TSharedRef<SWindow>&, const FTextCompositionEvent& CompositionEvent)
{
	RequestFrame();
	return Focus->Route(
		[&CompositionEvent](SWidget& Widget) { return Widget.OnTextComposition(Widget.GetCachedGeometry(), CompositionEvent); });
}

void FSlateApplication::SetKeyboardFocus(const TSharedPtr<SWidget>& Widget, EFocusCause Cause)
{
	Focus->Set(Widget, Cause);
}

void FSlateApplication::ClearKeyboardFocus(EFocusCause Cause)
{
	Focus->Set(nullptr, Cause);
}

TSharedPtr<SWidget> FSlateApplication::GetKeyboardFocusedWidget() const
{
	return Focus->GetFocused();
}

TSharedPtr<SWidget> FSlateApplication::GetMouseCaptor() const
{
	return Mouse->GetCaptor();
}

void FSlateApplication::SetTextInputArea(bool bEnabled, const FSlateRect& CaretRect)
{
	Desktop->SetTextInputArea(bEnabled, CaretRect);
}

void FSlateApplication::ProcessReply(const FReply& Reply)
{
	if (Reply.ShouldReleaseMouse())
	{
		Mouse->ReleaseCapture();
	}
	if (Reply.GetMouseCaptor().IsValid())
	{
		Mouse->Capture(Reply.GetMouseCaptor().ToSharedRef());
	}
	if (Reply.GetUserFocusRecepient().IsValid())
	{
		Focus->Set(Reply.GetUserFocusRecepient(), Reply.GetFocusCause());
	}
}
