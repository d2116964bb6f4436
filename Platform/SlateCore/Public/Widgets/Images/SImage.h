// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Styling/SlateColor.h"
#include "Widgets/SLeafWidget.h"

struct FSlateBrush;

/** A brush drawn over its whole room; it wishes for the brush's own size. */
class SImage : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SImage) {}
	SLATE_ATTRIBUTE(const FSlateBrush*, Image)
	SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
	SLATE_ATTRIBUTE(TOptional<FVector2D>, DesiredSizeOverride)
	SLATE_END_ARGS()

	SImage();
	void Construct(const FArguments& InArgs);

	/** The brush must outlive the image; null draws nothing. */
	void SetImage(TAttribute<const FSlateBrush*> InImage) { ImageAttribute.Assign(*this, InImage); }
	const FSlateBrush* GetImage() const { return ImageAttribute.Get(); }
	void SetColorAndOpacity(TAttribute<FSlateColor> InColor) { ColorAndOpacityAttribute.Assign(*this, InColor); }

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

private:
	TSlateAttribute<const FSlateBrush*, EInvalidateWidgetReason::Layout> ImageAttribute;
	TSlateAttribute<FSlateColor, EInvalidateWidgetReason::Paint> ColorAndOpacityAttribute;
	TSlateAttribute<TOptional<FVector2D>, EInvalidateWidgetReason::Layout> DesiredSizeOverrideAttribute;
};
