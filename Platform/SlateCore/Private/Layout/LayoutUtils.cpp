// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Layout/LayoutUtils.h"

#include "Layout/ArrangedChildren.h"
#include "Layout/BasicLayoutWidgetSlot.h"
#include "Widgets/SWidget.h"

namespace
{
enum class EPlace : uint8
{
	Fill,
	Start,
	Center,
	End
};

// Both enumerations list their values in this order.
static_assert(HAlign_Right == 3 && VAlign_Bottom == 3);

AlignmentArrangeResult Place(EPlace Where, float Allotted, float Desired, float PaddingBefore, float PaddingAfter)
{
	const float Room = FMath::Max(0.0f, Allotted - PaddingBefore - PaddingAfter);
	const float Size = Where == EPlace::Fill ? Room : FMath::Min(Desired, Room);
	switch (Where)
	{
	case EPlace::Center:
		return {PaddingBefore + (Room - Size) / 2.0f, Size};
	case EPlace::End:
		return {Allotted - PaddingAfter - Size, Size};
	default:
		return {PaddingBefore, Size};
	}
}
} // namespace

AlignmentArrangeResult AlignChild(EHorizontalAlignment Alignment, float AllottedSize, float DesiredSize, const FMargin& Padding)
{
	return Place(static_cast<EPlace>(Alignment), AllottedSize, DesiredSize, Padding.Left, Padding.Right);
}

AlignmentArrangeResult AlignChild(EVerticalAlignment Alignment, float AllottedSize, float DesiredSize, const FMargin& Padding)
{
	return Place(static_cast<EPlace>(Alignment), AllottedSize, DesiredSize, Padding.Top, Padding.Bottom);
}

void ArrangeSingleChild(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren, const FBasicLayoutSlot& Slot)
{
	const TSharedRef<SWidget>& Child = Slot.GetWidget();
	const EVisibility Visibility = Child->GetVisibility();
	if (!ArrangedChildren.Accepts(Visibility))
	{
		return;
	}
	const FVector2D Size = AllottedGeometry.GetLocalSize();
	const FVector2D& Desired = Child->GetDesiredSize();
	const AlignmentArrangeResult X =
		AlignChild(Slot.GetHorizontalAlignment(), static_cast<float>(Size.X), static_cast<float>(Desired.X), Slot.GetPadding());
	const AlignmentArrangeResult Y =
		AlignChild(Slot.GetVerticalAlignment(), static_cast<float>(Size.Y), static_cast<float>(Desired.Y), Slot.GetPadding());
	ArrangedChildren.AddWidget(Visibility, AllottedGeometry.MakeChild(Child, FVector2D(X.Offset, Y.Offset), FVector2D(X.Size, Y.Size)));
}

FVector2D ComputeSlotDesiredSize(const FBasicLayoutSlot& Slot)
{
	const TSharedRef<SWidget>& Child = Slot.GetWidget();
	if (Child->GetVisibility() == EVisibility::Collapsed)
	{
		return FVector2D(0.0, 0.0);
	}
	return Child->GetDesiredSize() + Slot.GetPadding().GetDesiredSize();
}
