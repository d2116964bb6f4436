// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "VorelLog.h"
#include "Layout/Children.h"
#include "Widgets/SWidget.h"
#include <string>
#include <vector>

// Every widget below this one whose class was made as TypeName, in the order of the tree.
inline std::vector<TSharedRef<SWidget>> FindAll(const TSharedRef<SWidget>& Root, const TCHAR* TypeName)
{
	std::vector<TSharedRef<SWidget>> Found;
	if (Root->GetTypeAsString() == TypeName)
	{
		Found.push_back(Root);
	}
	FChildren* Children = Root->GetChildren();
	for (int32 Index = 0; Index < Children->Num(); ++Index)
	{
		const std::vector<TSharedRef<SWidget>> Below = FindAll(Children->GetChildAt(Index), TypeName);
		Found.insert(Found.end(), Below.begin(), Below.end());
	}
	return Found;
}

inline TSharedRef<SWidget> FindOne(const TSharedRef<SWidget>& Root, const TCHAR* TypeName, size_t Index = 0)
{
	const std::vector<TSharedRef<SWidget>> Found = FindAll(Root, TypeName);
	checkf(Index < Found.size(), TEXT("There are %d widgets of type %s"), static_cast<int32>(Found.size()), TypeName);
	return Found[Index];
}

// "x,y wxh" in the window's pixels, as of the last frame.
inline std::string PlaceOf(const TSharedRef<SWidget>& Widget)
{
	const FGeometry& Geometry = Widget->GetCachedGeometry();
	const FVector2D Position = Geometry.GetAbsolutePosition();
	const FVector2D Size = Geometry.GetLocalSize();
	return ToUtf8(FString::Printf(TEXT("%g,%g %gx%g"), Position.X, Position.Y, Size.X, Size.Y));
}

// The texts below a widget that are not collapsed, joined by Separator.
inline std::string ReadTexts(const TSharedRef<SWidget>& Root, const char* Separator = " | ")
{
	if (!Root->GetVisibility().IsVisible())
	{
		return "";
	}
	std::string Result = ToUtf8(Root->GetShownText());
	FChildren* Children = Root->GetChildren();
	for (int32 Index = 0; Index < Children->Num(); ++Index)
	{
		const std::string Below = ReadTexts(Children->GetChildAt(Index), Separator);
		Result += !Result.empty() && !Below.empty() ? Separator + Below : Below;
	}
	return Result;
}

// The messages as a reader sees them, as in "You: Hello | Vorel: Hi | (thinking)".
inline std::string ReadList(const TSharedRef<SWidget>& Root)
{
	std::string Result;
	const TSharedRef<SWidget> Box = FindOne(FindOne(FindOne(Root, TEXT("SChatView")), TEXT("SScrollBox")), TEXT("SVerticalBox"));
	FChildren* Slots = Box->GetChildren();
	for (int32 Index = 0; Index < Slots->Num(); ++Index)
	{
		const TSharedRef<SWidget> Child = Slots->GetChildAt(Index);
		const bool bIsPlaceholder = Child->GetTypeAsString() == TEXT("SLoadingMessageItem");
		Result += (Result.empty() ? "" : " | ") + (bIsPlaceholder ? std::string("(thinking)") : ReadTexts(Child, ": "));
	}
	return Result;
}
