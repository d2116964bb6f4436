// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Text/TextLayout.h"
#include "Styling/SlateTypes.h"
#include "Widgets/SLeafWidget.h"

class FSlateTextLayout;
struct FTextWrapping;

/** A label. */
class STextBlock : public SLeafWidget
{
	SLATE_BEGIN_ARGS(STextBlock) {}
	SLATE_ATTRIBUTE(FText, Text)
	SLATE_STYLE_ARGUMENT(FTextBlockStyle, TextStyle)
	/** The style's color if unset. */
	SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
	/** In units; not at all if zero. */
	SLATE_ARGUMENT(float, WrapTextAt)
	/** At the width that the label is given, if that is less. */
	SLATE_ARGUMENT(bool, AutoWrapText)
	SLATE_ARGUMENT(ETextJustify::Type, Justification)
	SLATE_END_ARGS()

public:
	STextBlock();
	virtual ~STextBlock() override;

	void Construct(const FArguments& InArgs);

	const FText& GetText() const { return TextAttribute.Get(); }
	void SetText(TAttribute<FText> InText) { TextAttribute.Assign(*this, InText); }
	void SetColorAndOpacity(TAttribute<FSlateColor> InColor) { ColorAttribute.Assign(*this, InColor); }

	virtual FString GetShownText() const override { return GetText().ToString(); }

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArranged(const FGeometry& AllottedGeometry) override;
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

private:
	TSlateAttribute<FText, EInvalidateWidgetReason::Layout> TextAttribute;
	TSlateAttribute<FSlateColor, EInvalidateWidgetReason::Paint> ColorAttribute;
	TSharedPtr<FSlateTextLayout> TextLayout;
	TUniquePtr<FTextWrapping> Wrapping;
	/** What the layout's lines were made of. */
	mutable TOptional<FText> LaidOutText;
};
