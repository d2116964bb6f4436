// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Styling/SlateColor.h"
#include "Widgets/SCompoundWidget.h"

struct FSlateBrush;

/** A brush behind its content, with room between. */
class SBorder : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SBorder) {}
	SLATE_ATTRIBUTE(const FSlateBrush*, BorderImage)
	SLATE_ATTRIBUTE(FSlateColor, BorderBackgroundColor)
	SLATE_ATTRIBUTE(FLinearColor, ColorAndOpacity)
	SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
	SLATE_ARGUMENT_DEFAULT(EHorizontalAlignment, HAlign) = HAlign_Fill;
	SLATE_ARGUMENT_DEFAULT(EVerticalAlignment, VAlign) = VAlign_Fill;
	SLATE_ARGUMENT_DEFAULT(FMargin, Padding) = FMargin(2.0f);
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	SBorder();
	void Construct(const FArguments& InArgs);

	/** The brush must outlive the border; null draws nothing. */
	void SetBorderImage(TAttribute<const FSlateBrush*> InImage) { BorderImageAttribute.Assign(*this, InImage); }
	const FSlateBrush* GetBorderImage() const { return BorderImageAttribute.Get(); }
	void SetContent(const TSharedRef<SWidget>& InContent) { ChildSlot[InContent]; }
	void SetPadding(const FMargin& InPadding) { ChildSlot.SetPadding(InPadding); }

protected:
	/** What is drawn behind the content; null draws nothing. */
	virtual const FSlateBrush* GetBackground(bool bEnabled) const { return GetBorderImage(); }
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

private:
	TSlateAttribute<const FSlateBrush*, EInvalidateWidgetReason::Paint> BorderImageAttribute;
	TSlateAttribute<FSlateColor, EInvalidateWidgetReason::Paint> BorderBackgroundColorAttribute;
};
