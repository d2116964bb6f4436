// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Application/SlateFrame.h"

#include "Widgets/SWindow.h"

FSlateFrameStats& FSlateFrame::GetStats()
{
	static FSlateFrameStats Stats;
	return Stats;
}

void FSlateFrame::Run(const TArray<TSharedRef<SWindow>>& Windows, double CurrentTime, float DeltaTime)
{
	++FrameNumber;
	GetStats() = FSlateFrameStats();
	for (const TSharedRef<SWindow>& Window : Windows)
	{
		ReadAttributes(*Window);
		TickWidgets(*Window, CurrentTime, DeltaTime);
		Window->UpdatePopup();
		LayOut(*Window);
		Paint(*Window);
	}
}

bool FSlateFrame::IsAnotherNeeded(const TArray<TSharedRef<SWindow>>& Windows) const
{
	for (const TSharedRef<SWindow>& Window : Windows)
	{
		if (IsLayoutPending(*Window) || Window->bPaintPending)
		{
			return true;
		}
		for (const TSharedRef<SWidget>& Widget : GetWantingFrames(*Window))
		{
			if (Widget->bCanTick && Widget->GetVisibility().IsVisible())
			{
				return true;
			}
		}
	}
	return false;
}

bool FSlateFrame::IsLayoutPending(const SWindow& Window)
{
	return Window.bSizePending || Window.bArrangePending;
}

void FSlateFrame::CollectWantingFrames(SWidget& Widget, TArray<TSharedRef<SWidget>>& OutWidgets)
{
	if (!Widget.bWantsFrames)
	{
		return;
	}
	OutWidgets.Add(Widget.AsShared());
	Widget.BoundVisibilityChildren.RemoveAll(
		[&Widget](const TWeakPtr<SWidget>& Weak)
		{
			const TSharedPtr<SWidget> Child = Weak.Pin();
			return !Child.IsValid() || Child->Parent != &Widget || !Child->VisibilityAttribute.IsBound();
		});
	for (const TWeakPtr<SWidget>& Child : Widget.BoundVisibilityChildren)
	{
		OutWidgets.Add(Child.Pin().ToSharedRef());
	}
	for (const FArrangedWidget& Child : Widget.Arranged.GetInternalArray())
	{
		if (Child.Widget->GetVisibility().IsVisible() &&
			FSlateRect::DoRectanglesIntersect(Widget.Arranged.GetViewRect(), Child.Geometry.GetRenderBoundingRect()))
		{
			CollectWantingFrames(*Child.Widget, OutWidgets);
		}
	}
}

TArray<TSharedRef<SWidget>> FSlateFrame::GetWantingFrames(SWindow& Window)
{
	TArray<TSharedRef<SWidget>> Widgets;
	CollectWantingFrames(Window, Widgets);
	return Widgets;
}

void FSlateFrame::ReadAttributes(SWindow& Window)
{
	for (const TSharedRef<SWidget>& Widget : GetWantingFrames(Window))
	{
		if (Widget->AttributesReadInFrame == FrameNumber)
		{
			continue;
		}
		Widget->AttributesReadInFrame = FrameNumber;
		for (int32 Index = 0; Index < Widget->BoundAttributes.Num(); ++Index)
		{
			++GetStats().NumAttributesRead;
			Widget->Invalidate(Widget->BoundAttributes[Index]->Update());
		}
	}
}

void FSlateFrame::TickWidgets(SWindow& Window, double CurrentTime, float DeltaTime)
{
	for (const TSharedRef<SWidget>& Widget : GetWantingFrames(Window))
	{
		if (Widget->bCanTick && Widget->bHasGeometry && Widget->GetVisibility().IsVisible())
		{
			++GetStats().NumTicked;
			Widget->Tick(Widget->CachedGeometry, CurrentTime, DeltaTime);
		}
	}
}

void FSlateFrame::LayOut(SWindow& Window)
{
	for (int32 Pass = 0; Pass < SWidget::MaxLayoutPasses && IsLayoutPending(Window); ++Pass)
	{
		++GetStats().NumLayoutPasses;
		const FGeometry Geometry = Window.GetWindowGeometryInWindow();
		Window.SlatePrepass(Geometry.GetScale());
		Window.Arrange(Geometry, Geometry.GetLayoutBoundingRect());
		// What came into view just now has not been read in this frame.
		ReadAttributes(Window);
		Window.UpdatePopup();
	}
}

void FSlateFrame::Paint(SWindow& Window)
{
	if (!Window.bPaintPending)
	{
		return;
	}
	const FGeometry Geometry = Window.GetWindowGeometryInWindow();
	FSlateWindowElementList Elements;
	Elements.BeginChunk(nullptr, TOptional<FSlateRect>());
	Window.Paint(FPaintArgs(), Geometry, Geometry.GetLayoutBoundingRect(), Elements, 0, FWidgetStyle(), true);
	Window.SetDisplayList(Elements.EndChunk());
}
