// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Application/SlateFocus.h"

#include "Framework/Application/SlateApplication.h"
#include "Widgets/SWindow.h"

bool FSlateFocus::IsReachable(const SWidget& Widget)
{
	const SWidget* Top = &Widget;
	for (const SWidget* Each = &Widget; Each != nullptr; Each = Each->Parent)
	{
		if (!Each->GetVisibility().IsVisible() || !Each->IsEnabled())
		{
			return false;
		}
		Top = Each;
	}
	return dynamic_cast<const SWindow*>(Top) != nullptr;
}

void FSlateFocus::Set(const TSharedPtr<SWidget>& Widget, EFocusCause Cause)
{
	const TSharedPtr<SWidget> Former = GetFocused();
	if (Former == Widget || (Widget.IsValid() && !(Widget->SupportsKeyboardFocus() && IsReachable(*Widget))))
	{
		return;
	}
	Focused = Widget;
	if (Former.IsValid())
	{
		Former->OnFocusLost(FFocusEvent(Cause));
	}
	// Losing the focus may have moved it elsewhere already.
	if (Widget.IsValid() && GetFocused() == Widget)
	{
		for (SWidget* Around = Widget->Parent; Around != nullptr; Around = Around->Parent)
		{
			Around->OnFocusChanging(Widget.ToSharedRef(), FFocusEvent(Cause));
		}
		Application.ProcessReply(Widget->OnFocusReceived(Widget->GetCachedGeometry(), FFocusEvent(Cause)));
		if (const TSharedPtr<SWindow> Window = Application.FindWidgetWindow(Widget.ToSharedRef()))
		{
			Window->NoteFocusChanged();
		}
	}
}

void FSlateFocus::Refresh()
{
	const TSharedPtr<SWidget> Widget = GetFocused();
	if (Widget.IsValid() && !IsReachable(*Widget))
	{
		Set(nullptr, EFocusCause::Cleared);
	}
}

bool FSlateFocus::Route(const FHandler& Handler)
{
	for (TSharedPtr<SWidget> Widget = GetFocused(); Widget.IsValid(); Widget = Widget->GetParentWidget())
	{
		const FReply Reply = Handler(*Widget);
		if (Reply.IsEventHandled())
		{
			Application.ProcessReply(Reply);
			return true;
		}
	}
	return false;
}

bool FSlateFocus::KeyDown(SWindow& Window, const FKeyEvent& Event)
{
	if (Route([&Event](SWidget& Widget) { return Widget.OnKeyDown(Widget.GetCachedGeometry(), Event); }))
	{
		return true;
	}
	const FModifierKeysState& Modifiers = Event.GetModifierKeys();
	if (Event.GetKey() != EKeys::Tab || Modifiers.IsControlDown() || Modifiers.IsAltDown() || Modifiers.IsCommandDown())
	{
		return false;
	}
	Step(Window, !Modifiers.IsShiftDown());
	return true;
}

void FSlateFocus::Step(SWindow& Window, bool bForward)
{
	TArray<TSharedRef<SWidget>> Stops;
	// Tab walks round in what is open above the rest.
	const TSharedPtr<SWidget> Popup = Window.GetPopup();
	CollectFocusable(Popup.IsValid() ? *Popup : Window, Stops);
	if (Stops.IsEmpty())
	{
		return;
	}
	const TSharedPtr<SWidget> Current = GetFocused();
	const int32 At = Stops.IndexOfByPredicate([&Current](const TSharedRef<SWidget>& Stop) { return Current == Stop; });
	const int32 Next = At == INDEX_NONE ? (bForward ? 0 : Stops.Num() - 1) : (At + (bForward ? 1 : Stops.Num() - 1)) % Stops.Num();
	Set(Stops[Next], EFocusCause::Navigation);
}

void FSlateFocus::CollectFocusable(SWidget& Widget, TArray<TSharedRef<SWidget>>& OutWidgets)
{
	if (!Widget.GetVisibility().IsVisible() || !Widget.IsEnabled())
	{
		return;
	}
	if (Widget.SupportsKeyboardFocus())
	{
		OutWidgets.Add(Widget.AsShared());
	}
	FChildren& Children = *Widget.GetChildren();
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		CollectFocusable(*Children.GetChildAt(Index), OutWidgets);
	}
}
