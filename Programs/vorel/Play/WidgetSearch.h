// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Layout/SlateRect.h"

class SWidget;
class SWindow;

enum class ETextMatch : uint8
{
	None,
	Contained,
	Equal
};

// Whether a widget is one that is looked for, by itself and not by what is in it.
using FWidgetTest = TFunctionRef<ETextMatch(const SWidget& Widget)>;

struct FWidgetMatch
{
	TSharedRef<SWidget> Widget;
	ETextMatch Match;
	// What can be seen of it, in device pixels of the window; empty where nothing can.
	FSlateRect Visible;
	// Unset where it is out of view.
	TOptional<FVector2D> Middle;
};

// Looks for widgets as a reader does: what is collapsed or hidden does not exist, what is scrolled out of view does. All positions are
// those of the last frame.
class FWidgetSearch
{
public:
	// In the order of the tree. A widget that holds another match is none itself.
	static TArray<FWidgetMatch> Find(const SWindow& Window, FWidgetTest Test);

	// By what the widget shows, its accessible name and its tag; letter case counts. A hint is shown while it stands in for a text.
	static ETextMatch MatchText(const SWidget& Widget, const FString& Text);
	static TArray<FWidgetMatch> FindText(const SWindow& Window, const FString& Text);

	// Everything that a reader could read, in the order of the tree.
	static TArray<FString> GetShownTexts(const SWindow& Window);
};
