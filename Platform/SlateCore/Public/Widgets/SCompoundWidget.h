// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Layout/BasicLayoutWidgetSlot.h"
#include "Widgets/SWidget.h"

/** A widget built of others: it has one child, its ChildSlot. */
class SCompoundWidget : public SWidget
{
public:
	virtual FChildren* GetChildren() override { return &ChildSlot; }
	virtual FSlateColor GetForegroundColor() const override { return ForegroundColorAttribute.Get(); }

	/** Tints everything in it. */
	void SetColorAndOpacity(TAttribute<FLinearColor> InColor) { ColorAndOpacityAttribute.Assign(*this, InColor); }
	void SetForegroundColor(TAttribute<FSlateColor> InColor) { ForegroundColorAttribute.Assign(*this, InColor); }

protected:
	SCompoundWidget();

	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

	const FLinearColor& GetColorAndOpacity() const { return ColorAndOpacityAttribute.Get(); }

	FCompoundWidgetOneChildSlot ChildSlot;

private:
	TSlateAttribute<FLinearColor, EInvalidateWidgetReason::Paint> ColorAndOpacityAttribute;
	TSlateAttribute<FSlateColor, EInvalidateWidgetReason::Paint> ForegroundColorAttribute;
};
