// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/Layout/SScrollBox.h"

#include "Framework/Application/SlateApplication.h"
#include "Layout/LayoutUtils.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Layout/ScrollBar.h"

SScrollBox::SScrollBox()
	: Children(*this)
{
}

SScrollBox::~SScrollBox() = default;

void SScrollBox::Construct(const FArguments& InArgs)
{
	Bar = MakeUnique<FScrollBar>(*this,
		InArgs._ScrollBarStyle != nullptr ? *InArgs._ScrollBarStyle : FCoreStyle::Get().GetWidgetStyle<FScrollBarStyle>(TEXT("ScrollBar")));
	for (FSlot::FSlotArguments& Slot : InArgs._Slots)
	{
		Children.AddSlot(Slot.StealSlot());
	}
}

void SScrollBox::ScrollToEnd()
{
	bScrollToEnd = true;
	ScrollToEndFrame = 0;
	Invalidate(EInvalidateWidgetReason::Layout);
}

void SScrollBox::SetScrollOffset(float NewOffset)
{
	bScrollToEnd = false;
	Bar->SetOffset(NewOffset);
}

float SScrollBox::GetScrollOffset() const
{
	return static_cast<float>(Bar->GetOffset());
}

float SScrollBox::GetScrollOffsetOfEnd() const
{
	return static_cast<float>(Bar->GetOffsetOfEnd());
}

void SScrollBox::ScrollDescendantIntoView(const TSharedRef<SWidget>& Widget)
{
	const FGeometry Room = Widget->ComputeGeometry();
	const FGeometry& Own = GetCachedGeometry();
	const double Top = Own.AbsoluteToLocal(Room.LocalToAbsolute(FVector2D(0.0, 0.0))).Y;
	const double Bottom = Own.AbsoluteToLocal(Room.LocalToAbsolute(Room.GetLocalSize())).Y;
	const double Beyond = FMath::Max(0.0, Bottom - Bar->GetViewLength());
	SetScrollOffset(static_cast<float>(Bar->GetOffset() + FMath::Min(Top, Beyond)));
}

FVector2D SScrollBox::ComputeDesiredSize(float) const
{
	FVector2D Wish(0.0, 0.0);
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FVector2D SlotWish = ComputeSlotDesiredSize(Children[Index]);
		Wish = FVector2D(FMath::Max(Wish.X, SlotWish.X), Wish.Y + SlotWish.Y);
	}
	return Wish;
}

void SScrollBox::OnArranged(const FGeometry& AllottedGeometry)
{
	Bar->SetLengths(GetDesiredSize().Y, AllottedGeometry.GetLocalSize().Y);
	if (bScrollToEnd)
	{
		const uint64 Frame = FSlateApplication::Get().GetFrameNumber();
		ScrollToEndFrame = ScrollToEndFrame == 0 ? Frame : ScrollToEndFrame;
		bScrollToEnd = ScrollToEndFrame == Frame;
	}
	if (bScrollToEnd)
	{
		Bar->GoToEnd();
	}
}

void SScrollBox::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const double Width = FMath::Max(0.0, AllottedGeometry.GetLocalSize().X - Bar->GetThickness());
	double Offset = -Bar->GetOffset();
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FSlot& Slot = Children[Index];
		const FVector2D Wish = ComputeSlotDesiredSize(Slot);
		const FGeometry Room = AllottedGeometry.MakeChild(FVector2D(Width, Wish.Y), FSlateLayoutTransform(FVector2D(0.0, Offset)));
		ArrangeSingleChild(Room, ArrangedChildren, Slot);
		Offset += Wish.Y;
	}
}

int32 SScrollBox::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const int32 MaxLayerId =
		SPanel::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled);
	Bar->Paint(AllottedGeometry, OutDrawElements, MaxLayerId, InWidgetStyle);
	return MaxLayerId;
}
