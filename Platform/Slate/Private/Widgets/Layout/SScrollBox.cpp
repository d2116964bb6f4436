// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/Layout/SScrollBox.h"

#include "Framework/Application/SlateApplication.h"
#include "Layout/LayoutUtils.h"
#include "Styling/CoreStyle.h"

namespace
{
constexpr float LengthTolerance = 0.01f;
constexpr float MaxBarThickness = 12.0f;
} // namespace

SScrollBox::SScrollBox()
	: Children(*this)
{
}

void SScrollBox::Construct(const FArguments& InArgs)
{
	BarStyle =
		InArgs._ScrollBarStyle != nullptr ? InArgs._ScrollBarStyle : &FCoreStyle::Get().GetWidgetStyle<FScrollBarStyle>(TEXT("ScrollBar"));
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
	const float Clamped = ClampOffset(NewOffset);
	if (ScrollOffset != Clamped)
	{
		ScrollOffset = Clamped;
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

void SScrollBox::ScrollDescendantIntoView(const TSharedRef<SWidget>& Widget)
{
	const FGeometry Room = Widget->ComputeGeometry();
	const FGeometry& Own = GetCachedGeometry();
	const float Top = static_cast<float>(Own.AbsoluteToLocal(Room.LocalToAbsolute(FVector2D(0.0, 0.0))).Y);
	const float Bottom = static_cast<float>(Own.AbsoluteToLocal(Room.LocalToAbsolute(Room.GetLocalSize())).Y);
	const float Beyond = FMath::Max(0.0f, Bottom - ViewLength);
	SetScrollOffset(ScrollOffset + FMath::Min(Top, Beyond));
}

float SScrollBox::GetScrollOffsetOfEnd() const
{
	return FMath::Max(0.0f, ContentLength - ViewLength);
}

float SScrollBox::ClampOffset(float Offset) const
{
	return FMath::Clamp(Offset, 0.0f, GetScrollOffsetOfEnd());
}

bool SScrollBox::IsBarShown() const
{
	return ContentLength > ViewLength + LengthTolerance;
}

float SScrollBox::GetBarThickness() const
{
	return FMath::Min(BarStyle->Thickness, MaxBarThickness);
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
	ContentLength = static_cast<float>(GetDesiredSize().Y);
	ViewLength = static_cast<float>(AllottedGeometry.GetLocalSize().Y);
	if (bScrollToEnd)
	{
		const uint64 Frame = FSlateApplication::Get().GetFrameNumber();
		ScrollToEndFrame = ScrollToEndFrame == 0 ? Frame : ScrollToEndFrame;
		bScrollToEnd = ScrollToEndFrame == Frame;
	}
	ScrollOffset = bScrollToEnd ? GetScrollOffsetOfEnd() : ClampOffset(ScrollOffset);
}

void SScrollBox::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const float Width = static_cast<float>(AllottedGeometry.GetLocalSize().X) - (IsBarShown() ? GetBarThickness() : 0.0f);
	float Offset = -ScrollOffset;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FSlot& Slot = Children[Index];
		const FVector2D Wish = ComputeSlotDesiredSize(Slot);
		const FGeometry Room =
			AllottedGeometry.MakeChild(FVector2D(FMath::Max(0.0f, Width), Wish.Y), FSlateLayoutTransform(FVector2D(0.0, Offset)));
		ArrangeSingleChild(Room, ArrangedChildren, Slot);
		Offset += static_cast<float>(Wish.Y);
	}
}

int32 SScrollBox::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const int32 MaxLayerId =
		SPanel::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled);
	if (!IsBarShown())
	{
		return MaxLayerId;
	}
	const FVector2D Size = AllottedGeometry.GetLocalSize();
	const auto DrawPart = [&](const FSlateBrush& Brush, const FThumb& Part)
	{
		const FSlateLayoutTransform Place(FVector2D(Size.X - GetBarThickness(), Part.Offset));
		FSlateDrawElement::MakeBox(OutDrawElements, MaxLayerId,
			AllottedGeometry.ToPaintGeometry(FVector2D(GetBarThickness(), Part.Length), Place), &Brush, ESlateDrawEffect::None,
			InWidgetStyle.GetColorAndOpacityTint() * Brush.GetTint(InWidgetStyle));
	};
	DrawPart(BarStyle->VerticalBackgroundImage, {0.0f, ViewLength});
	DrawPart(DragGrip.IsSet() ? BarStyle->DraggedThumbImage : (bBarHovered ? BarStyle->HoveredThumbImage : BarStyle->NormalThumbImage),
		GetThumb());
	return MaxLayerId;
}
