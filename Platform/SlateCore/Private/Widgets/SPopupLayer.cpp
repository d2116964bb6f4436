// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/SPopupLayer.h"

#include "Framework/Application/SlateFocus.h"

namespace
{
/** Between the anchor and the popup, and at least to the window's edge above and below, in units. */
constexpr float Gap = 2.0f;

struct FStretch
{
	float Start = 0.0f;
	float Length = 0.0f;
};

/** Below the anchor; above it where there is not enough room below and more above. */
FStretch PlaceVertically(const FSlateRect& Anchor, float Wish, float WindowHeight)
{
	const float RoomBelow = FMath::Max(0.0f, WindowHeight - Anchor.Bottom - 2.0f * Gap);
	const float RoomAbove = FMath::Max(0.0f, Anchor.Top - 2.0f * Gap);
	if (Wish <= RoomBelow || RoomBelow >= RoomAbove)
	{
		return {Anchor.Bottom + Gap, FMath::Min(Wish, RoomBelow)};
	}
	const float Length = FMath::Min(Wish, RoomAbove);
	return {Anchor.Top - Gap - Length, Length};
}

/** At least as wide as the anchor, from its left edge; from its right edge where the window is too narrow for that. */
FStretch PlaceHorizontally(const FSlateRect& Anchor, float Wish, float WindowWidth)
{
	const float Length = FMath::Min(FMath::Max(Wish, Anchor.Right - Anchor.Left), WindowWidth);
	const float Start = Anchor.Left + Length <= WindowWidth ? Anchor.Left : Anchor.Right - Length;
	return {FMath::Clamp(Start, 0.0f, WindowWidth - Length), Length};
}
} // namespace

void SPopupLayer::Construct(const FArguments& InArgs)
{
	Anchor = InArgs._Anchor;
	OnDismissed = InArgs._OnDismissed;
	OnClosed = InArgs._OnClosed;
	ChildSlot[InArgs._Content.Widget];
}

bool SPopupLayer::IsAnchored() const
{
	const TSharedPtr<SWidget> Widget = Anchor.Pin();
	return Widget.IsValid() && FSlateFocus::IsReachable(*Widget);
}

FSlateRect SPopupLayer::FindAnchorRect(const FGeometry& AllottedGeometry) const
{
	const TSharedPtr<SWidget> Widget = Anchor.Pin();
	if (!Widget.IsValid())
	{
		return AnchorRect;
	}
	const FSlateRect Absolute = Widget->GetCachedGeometry().GetRenderBoundingRect();
	const FVector2D Start = AllottedGeometry.AbsoluteToLocal(Absolute.GetTopLeft());
	const FVector2D End = AllottedGeometry.AbsoluteToLocal(Absolute.GetTopLeft() + Absolute.GetSize());
	return FSlateRect(static_cast<float>(Start.X), static_cast<float>(Start.Y), static_cast<float>(End.X), static_cast<float>(End.Y));
}

void SPopupLayer::FollowAnchor()
{
	if (!(FindAnchorRect(GetCachedGeometry()) == AnchorRect))
	{
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

void SPopupLayer::OnArranged(const FGeometry& AllottedGeometry)
{
	AnchorRect = FindAnchorRect(AllottedGeometry);
}

void SPopupLayer::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const TSharedRef<SWidget>& Popup = GetContent();
	const FVector2D Size = AllottedGeometry.GetLocalSize();
	const FVector2D& Wish = Popup->GetDesiredSize();
	const FStretch X = PlaceHorizontally(AnchorRect, static_cast<float>(Wish.X), static_cast<float>(Size.X));
	const FStretch Y = PlaceVertically(AnchorRect, static_cast<float>(Wish.Y), static_cast<float>(Size.Y));
	ArrangedChildren.AddWidget(AllottedGeometry.MakeChild(Popup, FVector2D(X.Start, Y.Start), FVector2D(X.Length, Y.Length)));
}

FReply SPopupLayer::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	if (InKeyEvent.GetKey() != EKeys::Escape)
	{
		return SCompoundWidget::OnKeyDown(MyGeometry, InKeyEvent);
	}
	OnDismissed.ExecuteIfBound();
	return FReply::Handled();
}

FReply SPopupLayer::OnMouseButtonDown(const FGeometry&, const FPointerEvent& MouseEvent)
{
	if (!GetContent()->GetCachedGeometry().IsUnderLocation(MouseEvent.GetScreenSpacePosition()))
	{
		OnDismissed.ExecuteIfBound();
	}
	return FReply::Handled();
}

FReply SPopupLayer::OnMouseWheel(const FGeometry&, const FPointerEvent&)
{
	// What is below must not scroll away from under the popup.
	return FReply::Handled();
}
