// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Types/SlateStructs.h"
#include "Widgets/SCompoundWidget.h"

/** Limits or overrides what its content wishes for. Limits act on the wish, so a slot that fills may still make it larger. */
class SBox : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SBox) { _Visibility = EVisibility::SelfHitTestInvisible; }
	SLATE_ARGUMENT_DEFAULT(EHorizontalAlignment, HAlign) = HAlign_Fill;
	SLATE_ARGUMENT_DEFAULT(EVerticalAlignment, VAlign) = VAlign_Fill;
	SLATE_ARGUMENT(FMargin, Padding)
	SLATE_ATTRIBUTE(FOptionalSize, WidthOverride)
	SLATE_ATTRIBUTE(FOptionalSize, HeightOverride)
	SLATE_ATTRIBUTE(FOptionalSize, MinDesiredWidth)
	SLATE_ATTRIBUTE(FOptionalSize, MinDesiredHeight)
	SLATE_ATTRIBUTE(FOptionalSize, MaxDesiredWidth)
	SLATE_ATTRIBUTE(FOptionalSize, MaxDesiredHeight)
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	SBox();
	void Construct(const FArguments& InArgs);

	void SetContent(const TSharedRef<SWidget>& InContent) { ChildSlot[InContent]; }

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	using FSizeAttribute = TSlateAttribute<FOptionalSize, EInvalidateWidgetReason::Layout>;

	FSizeAttribute WidthOverride;
	FSizeAttribute HeightOverride;
	FSizeAttribute MinDesiredWidth;
	FSizeAttribute MinDesiredHeight;
	FSizeAttribute MaxDesiredWidth;
	FSizeAttribute MaxDesiredHeight;
};
