// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Application/SlateFrame.h"
#include "Widgets/SWidget.h"

// The size and arrange passes, and the invalidation that tells them where to go.

void SWidget::Invalidate(EInvalidateWidgetReason Reason)
{
	if (EnumHasReason(Reason, EInvalidateWidgetReason::Layout))
	{
		bOwnSizeStale = true;
		bOwnArrangeStale = true;
		MarkLayout(true);
	}
	if (EnumHasReason(Reason, EInvalidateWidgetReason::Layout) || EnumHasReason(Reason, EInvalidateWidgetReason::Paint))
	{
		MarkPaint();
	}
	if (Parent == nullptr)
	{
		return;
	}
	if (EnumHasReason(Reason, EInvalidateWidgetReason::RenderTransform))
	{
		Parent->bOwnArrangeStale = true;
		Parent->MarkLayout(false);
	}
	if (EnumHasReason(Reason, EInvalidateWidgetReason::Visibility))
	{
		// What changed in it while it was collapsed was kept from its parent until now.
		ListInParent();
		Parent->OnChildLayoutChanged(AssignedSlot);
		Parent->Invalidate(EInvalidateWidgetReason::Layout);
	}
}

void SWidget::OnChildLayoutChanged(const FSlotBase*)
{
	bOwnSizeStale = true;
	bOwnArrangeStale = true;
}

void SWidget::ListInParent()
{
	if (!bListedInParent && Parent != nullptr && (bSizePending || bArrangePending))
	{
		Parent->UnsettledChildren.Add(AsWeak());
		bListedInParent = true;
	}
}

void SWidget::MarkLayout(bool bSizeToo)
{
	for (SWidget* Widget = this; Widget != nullptr; Widget = Widget->Parent)
	{
		const bool bKnownAbove = Widget->bListedInParent && Widget->bArrangePending && (Widget->bSizePending || !bSizeToo);
		Widget->bArrangePending = true;
		Widget->bSizePending |= bSizeToo;
		if (bKnownAbove || Widget->GetVisibility() == EVisibility::Collapsed)
		{
			return;
		}
		Widget->ListInParent();
		if (Widget->Parent == nullptr)
		{
			Widget->OnTreeInvalidated();
		}
	}
}

void SWidget::AssumeDesiredSize(const FVector2D& InSize)
{
	DesiredSize = InSize;
	bDesiredSizeAssumed = true;
}

void SWidget::SlatePrepass(float LayoutScaleMultiplier)
{
	const bool bScaleChanged = PrepassScale != LayoutScaleMultiplier;
	if (!bSizePending && !bScaleChanged)
	{
		return;
	}
	bSizePending = false;
	bOwnSizeStale |= bScaleChanged;
	PrepassScale = LayoutScaleMultiplier;
	bDesiredSizeAssumed = false;
	if (CustomPrepass(LayoutScaleMultiplier))
	{
		PrepassChildren(LayoutScaleMultiplier, bScaleChanged);
	}
	if (!bOwnSizeStale)
	{
		return;
	}
	bOwnSizeStale = false;
	++FSlateFrame::GetStats().NumDesiredSizes;
	const FVector2D NewSize = ComputeDesiredSize(LayoutScaleMultiplier);
	if (NewSize != DesiredSize)
	{
		DesiredSize = NewSize;
		if (Parent != nullptr)
		{
			Parent->OnChildLayoutChanged(AssignedSlot);
		}
	}
}

void SWidget::PrepassChildren(float LayoutScaleMultiplier, bool bAll)
{
	const auto Visit = [LayoutScaleMultiplier](SWidget& Child)
	{
		if (Child.GetVisibility() != EVisibility::Collapsed)
		{
			Child.SlatePrepass(LayoutScaleMultiplier);
		}
	};
	if (bAll)
	{
		FChildren& Children = *GetChildren();
		for (int32 Index = 0; Index < Children.Num(); ++Index)
		{
			Visit(*Children.GetChildAt(Index));
		}
		return;
	}
	for (int32 Index = 0; Index < UnsettledChildren.Num(); ++Index)
	{
		const TSharedPtr<SWidget> Child = UnsettledChildren[Index].Pin();
		if (Child.IsValid() && Child->Parent == this)
		{
			Visit(*Child);
		}
	}
}

TArray<TSharedPtr<SWidget>> SWidget::TakeUnsettledChildren()
{
	TArray<TSharedPtr<SWidget>> Taken;
	for (const TWeakPtr<SWidget>& Weak : UnsettledChildren)
	{
		const TSharedPtr<SWidget> Child = Weak.Pin();
		if (Child.IsValid() && Child->Parent == this)
		{
			Child->bListedInParent = false;
			Taken.Add(Child);
		}
	}
	UnsettledChildren.Empty();
	return Taken;
}

void SWidget::Arrange(const FGeometry& AllottedGeometry, const FSlateRect& ViewRect)
{
	const bool bMoved = !bHasGeometry || !(AllottedGeometry == CachedGeometry);
	const bool bPlaceAll = bMoved || bOwnArrangeStale || !(ViewRect == CachedViewRect);
	if (!bPlaceAll && !bArrangePending)
	{
		return;
	}
	const bool bKeepsScale = bHasGeometry && AllottedGeometry.GetScale() == CachedGeometry.GetScale();
	const TOptional<FVector2D> FormerSize = bKeepsScale ? CachedGeometry.GetLocalSize() : TOptional<FVector2D>();
	const bool bTellSelf = bOwnArrangeStale || !FormerSize.IsSet() || *FormerSize != AllottedGeometry.GetLocalSize();

	++FSlateFrame::GetStats().NumArranged;
	bHasGeometry = true;
	CachedGeometry = AllottedGeometry;
	CachedViewRect = ViewRect;
	bArrangePending = false;
	bOwnArrangeStale = false;
	if (bMoved)
	{
		MarkPaint();
	}
	if (bTellSelf)
	{
		OnArranged(AllottedGeometry);
	}
	ArrangeOwnChildren(bPlaceAll, FormerSize);
}

void SWidget::ArrangeOwnChildren(bool bPlaceAll, const TOptional<FVector2D>& FormerSize)
{
	FArrangedChildren NewArranged(EVisibility::Visible, ClipToSelf(CachedViewRect));
	NewArranged.SetFormerState(FormerSize, TakeUnsettledChildren());
	if (bPlaceAll)
	{
		OnArrangeChildren(CachedGeometry, NewArranged);
	}
	PlaceChildren(NewArranged);
	if (bPlaceAll)
	{
		const bool bSameChildren = NewArranged.GetInternalArray() == Arranged.GetInternalArray();
		Arranged = MoveTemp(NewArranged);
		Arranged.ForgetPass();
		if (!bSameChildren)
		{
			MarkPaint();
		}
	}
}

void SWidget::PlaceChildren(const FArrangedChildren& NewArranged)
{
	const bool bSomeUnsettled = !NewArranged.GetUnsettled().IsEmpty();
	TSet<const SWidget*> Placed;
	const auto Place = [&](const FArrangedWidget& Child)
	{
		Child.Widget->Arrange(Child.Geometry, NewArranged.GetViewRect());
		if (bSomeUnsettled)
		{
			Placed.Add(&*Child.Widget);
		}
	};
	for (const FArrangedWidget& Child : NewArranged.GetInternalArray())
	{
		Place(Child);
	}
	for (const FArrangedWidget& Child : NewArranged.GetOutOfView())
	{
		Place(Child);
	}
	for (const TSharedPtr<SWidget>& Child : NewArranged.GetUnsettled())
	{
		// One that was placed just now and wants another layout is left to the next pass, which its parents were told of.
		if (Child->bArrangePending && Child->bHasGeometry && Child->GetVisibility().IsVisible() && !Placed.Contains(Child.Get()))
		{
			Child->Arrange(Child->CachedGeometry, Child->CachedViewRect);
		}
	}
}

FGeometry SWidget::ComputeGeometry() const
{
	if (Parent == nullptr)
	{
		return CachedGeometry;
	}
	const FGeometry ParentGeometry = Parent->ComputeGeometry();
	FArrangedChildren Siblings(EVisibility::All);
	Parent->ArrangeChildren(ParentGeometry, Siblings);
	const FArrangedWidget* Self =
		Siblings.GetInternalArray().FindByPredicate([this](const FArrangedWidget& Each) { return &*Each.Widget == this; });
	return Self != nullptr ? Self->Geometry : CachedGeometry;
}

void SWidget::ArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	OnArrangeChildren(AllottedGeometry, ArrangedChildren);
}

FSlateRect SWidget::ClipToSelf(const FSlateRect& Rect) const
{
	return Clipping == EWidgetClipping::ClipToBounds ? Rect.IntersectionWith(CachedGeometry.GetRenderBoundingRect()) : Rect;
}
