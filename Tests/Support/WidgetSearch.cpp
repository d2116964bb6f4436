// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/WidgetSearch.h"

#include "Widgets/SWidget.h"

namespace
{
using FTest = TFunctionRef<bool(const FString&)>;

bool Matches(const SWidget& Widget, FTest Test)
{
	const FName& Tag = Widget.GetTag();
	return Test(Widget.GetShownText()) || Test(Widget.GetHint()) || Test(Widget.GetAccessibleText().ToString()) ||
		   (Tag != NAME_None && Test(Tag.ToString()));
}

TSharedPtr<SWidget> FindFirst(const TSharedRef<SWidget>& Widget, FTest Test)
{
	if (!Widget->GetVisibility().IsVisible())
	{
		return nullptr;
	}
	FChildren& Children = *Widget->GetChildren();
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		if (const TSharedPtr<SWidget> Inner = FindFirst(Children.GetChildAt(Index), Test))
		{
			return Inner;
		}
	}
	return Matches(*Widget, Test) ? TSharedPtr<SWidget>(Widget) : nullptr;
}
} // namespace

TSharedPtr<SWidget> FindWidgetByText(const TSharedRef<SWidget>& Root, const FString& Text)
{
	const auto IsEqual = [&Text](const FString& Shown)
	{
		return Shown.Equals(Text, ESearchCase::CaseSensitive);
	};
	const auto IsContained = [&Text](const FString& Shown)
	{
		return Shown.Contains(Text, ESearchCase::CaseSensitive);
	};
	const TSharedPtr<SWidget> Equal = FindFirst(Root, IsEqual);
	return Equal.IsValid() ? Equal : FindFirst(Root, IsContained);
}
