// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Input/Events.h"
#include "Input/Reply.h"

class FSlateApplication;
class SWidget;
class SWindow;

/** The keyboard focus: who has it, where Tab takes it, and which widgets get keys. */
class FSlateFocus
{
public:
	using FHandler = TFunctionRef<FReply(SWidget&)>;

	explicit FSlateFocus(FSlateApplication& InApplication)
		: Application(InApplication)
	{
	}

	/** Whether the widget is part of a window, can be seen and is enabled, and so is all that it stands in. */
	static bool IsReachable(const SWidget& Widget);

	TSharedPtr<SWidget> GetFocused() const { return Focused.Pin(); }

	/** Null takes it from whoever has it. A widget that is not focusable leaves everything as it is. */
	void Set(const TSharedPtr<SWidget>& Widget, EFocusCause Cause);

	/** After a layout: the focused widget may have gone. */
	void Refresh();

	bool KeyDown(SWindow& Window, const FKeyEvent& Event);

	/** The focused widget is asked first, then what it stands in. */
	bool Route(const FHandler& Handler);

private:
	void Step(SWindow& Window, bool bForward);
	static void CollectFocusable(SWidget& Widget, TArray<TSharedRef<SWidget>>& OutWidgets);

	FSlateApplication& Application;
	TWeakPtr<SWidget> Focused;
};
