// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Play/WidgetSearch.h"

#include "Widgets/SWindow.h"

namespace
{
// Where a widget was drawn. Unset for one that was not.
struct FPlace
{
	FSlateRect Bounds;
	// What its ancestors let through.
	FSlateRect View;
};

TOptional<FPlace> FindPlaceOfChild(const SWidget& Parent, const SWidget& Child, const TOptional<FPlace>& ParentPlace)
{
	if (!ParentPlace)
	{
		return NullOpt;
	}
	const bool bClips = Parent.GetClipping() == EWidgetClipping::ClipToBounds;
	const FSlateRect View = bClips ? ParentPlace->View.IntersectionWith(ParentPlace->Bounds) : ParentPlace->View;
	for (const FArrangedWidget& Arranged : Parent.GetArrangedChildren().GetInternalArray())
	{
		if (&*Arranged.Widget == &Child)
		{
			return FPlace{Arranged.Geometry.GetRenderBoundingRect(), View};
		}
	}
	return NullOpt;
}

FWidgetMatch MakeMatch(const TSharedRef<SWidget>& Widget, ETextMatch Match, const TOptional<FPlace>& Place)
{
	FWidgetMatch Result{Widget, Match, FSlateRect(), NullOpt};
	if (Place)
	{
		const FSlateRect& Bounds = Place->Bounds;
		const FVector2D Middle = Bounds.GetTopLeft() + Bounds.GetSize() * 0.5;
		Result.Visible = Bounds.IntersectionWith(Place->View);
		Result.Middle = Place->View.ContainsPoint(Middle) ? TOptional<FVector2D>(Middle) : NullOpt;
	}
	return Result;
}

// Adds the matches in this widget, else itself. Returns whether there was one.
bool AddMatches(const TSharedRef<SWidget>& Widget, const TOptional<FPlace>& Place, FWidgetTest Test, TArray<FWidgetMatch>& OutMatches)
{
	if (!Widget->GetVisibility().IsVisible())
	{
		return false;
	}
	bool bFound = false;
	FChildren& Children = *Widget->GetChildren();
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const TSharedRef<SWidget> Child = Children.GetChildAt(Index);
		bFound |= AddMatches(Child, FindPlaceOfChild(*Widget, *Child, Place), Test, OutMatches);
	}
	if (const ETextMatch Match = bFound ? ETextMatch::None : Test(*Widget); Match != ETextMatch::None)
	{
		OutMatches.Add(MakeMatch(Widget, Match, Place));
		bFound = true;
	}
	return bFound;
}

ETextMatch Compare(const FString& Shown, const FString& Text)
{
	if (Shown.Equals(Text))
	{
		return ETextMatch::Equal;
	}
	return Shown.Contains(Text, ESearchCase::CaseSensitive) ? ETextMatch::Contained : ETextMatch::None;
}

FString GetTextOnScreen(const SWidget& Widget)
{
	const FString Shown = Widget.GetShownText();
	return Shown.IsEmpty() ? Widget.GetHint() : Shown;
}

void AddShownTexts(const TSharedRef<SWidget>& Widget, TArray<FString>& OutTexts)
{
	if (!Widget->GetVisibility().IsVisible())
	{
		return;
	}
	if (const FString Shown = GetTextOnScreen(*Widget); !Shown.IsEmpty())
	{
		OutTexts.Add(Shown);
	}
	FChildren& Children = *Widget->GetChildren();
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		AddShownTexts(Children.GetChildAt(Index), OutTexts);
	}
}

// Tree walks reach children only by way of those who own them.
TSharedRef<SWidget> AsOwned(const SWindow& Window)
{
	return ConstCastSharedRef<SWidget>(Window.AsShared());
}
} // namespace

TArray<FWidgetMatch> FWidgetSearch::Find(const SWindow& Window, FWidgetTest Test)
{
	const FVector2D& Size = Window.GetClientSizeInPixels();
	const FSlateRect All(0.0f, 0.0f, static_cast<float>(Size.X), static_cast<float>(Size.Y));
	TArray<FWidgetMatch> Matches;
	AddMatches(AsOwned(Window), FPlace{All, All}, Test, Matches);
	return Matches;
}

ETextMatch FWidgetSearch::MatchText(const SWidget& Widget, const FString& Text)
{
	ETextMatch Best = ETextMatch::None;
	for (const FString& Shown :
		{GetTextOnScreen(Widget), Widget.GetAccessibleText().ToString(), Widget.GetTag().IsNone() ? FString() : Widget.GetTag().ToString()})
	{
		Best = FMath::Max(Best, Compare(Shown, Text));
	}
	return Best;
}

TArray<FWidgetMatch> FWidgetSearch::FindText(const SWindow& Window, const FString& Text)
{
	return Find(Window, [&Text](const SWidget& Widget) { return MatchText(Widget, Text); });
}

TArray<FString> FWidgetSearch::GetShownTexts(const SWindow& Window)
{
	TArray<FString> Texts;
	AddShownTexts(AsOwned(Window), Texts);
	return Texts;
}
