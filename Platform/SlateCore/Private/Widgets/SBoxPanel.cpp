// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/SBoxPanel.h"

#include "Layout/BoxLayout.h"
#include "Layout/LayoutUtils.h"

namespace
{
/** In device pixels: a child's render transform may draw it this far out of its room. */
constexpr float RenderTransformReach = 64.0f;
} // namespace

void SBoxPanel::FSlot::SetFillWeight(float InWeight)
{
	check(InWeight >= 0.0f);
	if (FillWeight != InWeight)
	{
		FillWeight = InWeight;
		InvalidateOwner();
	}
}

void SBoxPanel::FSlot::SetMaxSize(float InMaxSize)
{
	if (MaxSize != InMaxSize)
	{
		MaxSize = InMaxSize;
		InvalidateOwner();
	}
}

SBoxPanel::SBoxPanel(EOrientation InOrientation)
	: Children(*this)
	, Orientation(InOrientation)
{
}

bool SBoxPanel::RemoveSlot(const TSharedRef<SWidget>& SlotWidget)
{
	const int32 Index = Children.Find(*SlotWidget);
	if (Index == INDEX_NONE)
	{
		return false;
	}
	Children.RemoveAt(Index);
	NumSettled = FMath::Min(NumSettled, Index);
	Invalidate(EInvalidateWidgetReason::Layout);
	return true;
}

void SBoxPanel::ClearChildren()
{
	Children.Empty();
	NumSettled = 0;
	Invalidate(EInvalidateWidgetReason::Layout);
}

void SBoxPanel::OnChildLayoutChanged(const FSlotBase* ChildSlot)
{
	NumSettled = FMath::Min(NumSettled, ChildSlot->GetIndex());
	SPanel::OnChildLayoutChanged(ChildSlot);
}

FVector2D SBoxPanel::ComputeDesiredSize(float) const
{
	UpdateTotals();
	const FRunningTotal Whole = Totals.IsEmpty() ? FRunningTotal() : Totals.Last();
	return Orientation == Orient_Horizontal ? FVector2D(Whole.Along, Whole.Across) : FVector2D(Whole.Across, Whole.Along);
}

void SBoxPanel::UpdateTotals() const
{
	Totals.SetNum(Children.Num());
	for (; NumSettled < Children.Num(); ++NumSettled)
	{
		const FRunningTotal Before = NumSettled > 0 ? Totals[NumSettled - 1] : FRunningTotal();
		Totals[NumSettled] = AddToTotal(Before, Children[NumSettled]);
	}
}

SBoxPanel::FRunningTotal SBoxPanel::AddToTotal(const FRunningTotal& Before, const FSlot& Slot) const
{
	if (Slot.GetWidget()->GetVisibility() == EVisibility::Collapsed)
	{
		return Before;
	}
	const FVector2D Padding = Slot.GetPadding().GetDesiredSize();
	const FVector2D Wish = Slot.GetWidget()->GetDesiredSize();
	FRunningTotal Sum = Before;
	Sum.Along += GetWishedBoxSlotSize({Along(Wish), Along(Padding), 0.0f, Slot.GetMaxSize()});
	Sum.Across = FMath::Max(Sum.Across, Across(Wish) + Across(Padding));
	Sum.NumFilling += Slot.GetFillWeight() > 0.0f ? 1 : 0;
	return Sum;
}

void SBoxPanel::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	UpdateTotals();
	if (Totals.IsEmpty())
	{
		return;
	}
	if (Totals.Last().NumFilling > 0)
	{
		ArrangeFilling(AllottedGeometry, ArrangedChildren);
	}
	else
	{
		ArrangeVisibleRange(AllottedGeometry, ArrangedChildren);
	}
}

void SBoxPanel::ArrangeFilling(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	TArray<FBoxSlotInput> Inputs;
	TArray<const FSlot*> Slots;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FSlot& Slot = Children[Index];
		if (Slot.GetWidget()->GetVisibility() != EVisibility::Collapsed)
		{
			Slots.Add(&Slot);
			Inputs.Add({Along(Slot.GetWidget()->GetDesiredSize()), Along(Slot.GetPadding().GetDesiredSize()), Slot.GetFillWeight(),
				Slot.GetMaxSize()});
		}
	}
	const TArray<FBoxSlotExtent> Extents = ArrangeBoxSlots(Inputs, Along(AllottedGeometry.GetLocalSize()));
	for (int32 Index = 0; Index < Slots.Num(); ++Index)
	{
		ArrangedChildren.AddWidget(ArrangeSlot(AllottedGeometry, *Slots[Index], Extents[Index]));
	}
}

void SBoxPanel::ArrangeVisibleRange(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const FSlateRect View = ArrangedChildren.GetViewRect().ExtendBy(RenderTransformReach);
	const float From = Along(AllottedGeometry.AbsoluteToLocal(View.GetTopLeft()));
	const float To = Along(AllottedGeometry.AbsoluteToLocal(View.GetTopLeft() + View.GetSize()));
	const int32 First = FindSlotAt(From);
	int32 End = First;
	while (End < Children.Num() && GetOffset(End) <= To)
	{
		++End;
	}
	const TOptional<FVector2D>& Former = ArrangedChildren.GetFormerSize();
	const bool bAll = !Former.IsSet() || Across(Former.GetValue()) != Across(AllottedGeometry.GetLocalSize());
	for (int32 Index = bAll ? 0 : First; Index < (bAll ? Children.Num() : End); ++Index)
	{
		PlaceSlot(AllottedGeometry, ArrangedChildren, Index, Index >= First && Index < End);
	}
	if (bAll)
	{
		return;
	}
	for (const TSharedPtr<SWidget>& Child : ArrangedChildren.GetUnsettled())
	{
		const int32 Index = Child->GetAssignedSlot()->GetIndex();
		if (Index < First || Index >= End)
		{
			PlaceSlot(AllottedGeometry, ArrangedChildren, Index, false);
		}
	}
}

void SBoxPanel::PlaceSlot(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren, int32 Index, bool bInView) const
{
	const FSlot& Slot = Children[Index];
	if (Slot.GetWidget()->GetVisibility() == EVisibility::Collapsed)
	{
		return;
	}
	const FArrangedWidget Placed = ArrangeSlot(AllottedGeometry, Slot, {GetOffset(Index), Totals[Index].Along - GetOffset(Index)});
	if (bInView)
	{
		ArrangedChildren.AddWidget(Placed);
	}
	else
	{
		ArrangedChildren.AddOutOfView(Placed);
	}
}

FArrangedWidget SBoxPanel::ArrangeSlot(const FGeometry& AllottedGeometry, const FSlot& Slot, const FBoxSlotExtent& Extent) const
{
	const bool bHorizontal = Orientation == Orient_Horizontal;
	const float Breadth = Across(AllottedGeometry.GetLocalSize());
	const FVector2D Wish = Slot.GetWidget()->GetDesiredSize();
	const AlignmentArrangeResult X =
		AlignChild(Slot.GetHorizontalAlignment(), bHorizontal ? Extent.Size : Breadth, static_cast<float>(Wish.X), Slot.GetPadding());
	const AlignmentArrangeResult Y =
		AlignChild(Slot.GetVerticalAlignment(), bHorizontal ? Breadth : Extent.Size, static_cast<float>(Wish.Y), Slot.GetPadding());
	const FVector2D Start = bHorizontal ? FVector2D(Extent.Offset, 0.0) : FVector2D(0.0, Extent.Offset);
	return AllottedGeometry.MakeChild(Slot.GetWidget(), Start + FVector2D(X.Offset, Y.Offset), FVector2D(X.Size, Y.Size));
}

int32 SBoxPanel::FindSlotAt(float Offset) const
{
	int32 Low = 0;
	int32 High = Totals.Num();
	while (Low < High)
	{
		const int32 Middle = (Low + High) / 2;
		if (Totals[Middle].Along < Offset)
		{
			Low = Middle + 1;
		}
		else
		{
			High = Middle;
		}
	}
	return Low;
}

void SHorizontalBox::Construct(const FArguments& InArgs)
{
	for (FSlot::FSlotArguments& Slot : InArgs._Slots)
	{
		Children.AddSlot(Slot.StealSlot());
	}
}

void SVerticalBox::Construct(const FArguments& InArgs)
{
	for (FSlot::FSlotArguments& Slot : InArgs._Slots)
	{
		Children.AddSlot(Slot.StealSlot());
	}
}
