// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/SOverlay.h"

#include "Layout/LayoutUtils.h"

SOverlay::SOverlay()
	: Children(*this)
{
}

void SOverlay::Construct(const FArguments& InArgs)
{
	for (FOverlaySlot::FSlotArguments& Slot : InArgs._Slots)
	{
		Children.AddSlot(Slot.StealSlot());
	}
}

FVector2D SOverlay::ComputeDesiredSize(float) const
{
	FVector2D Largest(0.0, 0.0);
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FVector2D Wish = ComputeSlotDesiredSize(Children[Index]);
		Largest = FVector2D(FMath::Max(Largest.X, Wish.X), FMath::Max(Largest.Y, Wish.Y));
	}
	return Largest;
}

void SOverlay::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		ArrangeSingleChild(AllottedGeometry, ArrangedChildren, Children[Index]);
	}
}
