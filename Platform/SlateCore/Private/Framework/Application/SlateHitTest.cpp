// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Application/SlateHitTest.h"

#include "Widgets/SWindow.h"

TArray<FArrangedWidget> FSlateHitTest::FindPath(SWindow& Window, const FVector2D& Point)
{
	TArray<FArrangedWidget> Path;
	Visit(FArrangedWidget(Window.AsShared(), Window.GetWindowGeometryInWindow()), Point, Path);
	const int32 FirstDisabled = Path.IndexOfByPredicate([](const FArrangedWidget& Entry) { return !Entry.Widget->IsEnabled(); });
	if (FirstDisabled != INDEX_NONE)
	{
		Path.RemoveAt(FirstDisabled, Path.Num() - FirstDisabled);
	}
	return Path;
}

bool FSlateHitTest::Visit(const FArrangedWidget& Candidate, const FVector2D& Point, TArray<FArrangedWidget>& Path)
{
	SWidget& Widget = *Candidate.Widget;
	const EVisibility Visibility = Widget.GetVisibility();
	const bool bClips = Widget.GetClipping() == EWidgetClipping::ClipToBounds;
	if (!Visibility.IsVisible() || (bClips && !Candidate.Geometry.GetRenderBoundingRect().ContainsPoint(Point)))
	{
		return false;
	}
	Path.Add(Candidate);
	if (Visibility.AreChildrenHitTestVisible())
	{
		const TArray<FArrangedWidget>& Children = Widget.GetArrangedChildren().GetInternalArray();
		for (int32 Index = Children.Num() - 1; Index >= 0; --Index)
		{
			if (Visit(Children[Index], Point, Path))
			{
				return true;
			}
		}
	}
	if (Visibility.IsHitTestVisible() && Candidate.Geometry.IsUnderLocation(Point))
	{
		return true;
	}
	Path.Pop();
	return false;
}
