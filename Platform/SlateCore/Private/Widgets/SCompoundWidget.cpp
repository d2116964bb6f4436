// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/SCompoundWidget.h"

#include "Layout/LayoutUtils.h"

SCompoundWidget::SCompoundWidget()
	: ChildSlot(*this)
	, ColorAndOpacityAttribute(*this, FLinearColor::White)
	, ForegroundColorAttribute(*this, FSlateColor::UseForeground())
{
}

FVector2D SCompoundWidget::ComputeDesiredSize(float) const
{
	return ComputeSlotDesiredSize(ChildSlot);
}

void SCompoundWidget::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	ArrangeSingleChild(AllottedGeometry, ArrangedChildren, ChildSlot);
}

int32 SCompoundWidget::OnPaint(const FPaintArgs& Args, const FGeometry&, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const FWidgetStyle ContentStyle =
		FWidgetStyle(InWidgetStyle).BlendColorAndOpacityTint(GetColorAndOpacity()).SetForegroundColor(GetForegroundColor());
	return PaintArrangedChildren(Args, MyCullingRect, OutDrawElements, LayerId, ContentStyle, ShouldBeEnabled(bParentEnabled));
}
