// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Text/ISlateRun.h"
#include "Misc/Attribute.h"
#include "Misc/Optional.h"

class FTextLayout;

/** A widget among the text, in the place of one character of the model. It lives as long as its run. */
class FSlateWidgetRun : public ISlateRun
{
public:
	struct FWidgetRunInfo
	{
		TSharedRef<SWidget> Widget;
		/** How far the widget's bottom is above the text's baseline (negative: below), in units. */
		TAttribute<int16> Baseline;
		/** In units; the widget's desired size if unset. */
		TOptional<FVector2D> Size;

		FWidgetRunInfo(const TSharedRef<SWidget>& InWidget, const TAttribute<int16>& InBaseline, const TOptional<FVector2D>& InSize = {});
	};

	static TSharedRef<FSlateWidgetRun> Create(const TSharedRef<FTextLayout>& TextLayout, const FRunInfo& InRunInfo,
		const TSharedRef<const FString>& InText, const FWidgetRunInfo& InWidgetInfo, const FTextRange& InRange);

	virtual const FRunInfo& GetRunInfo() const override { return RunInfo; }
	virtual FTextRange GetTextRange() const override { return Range; }
	virtual ERunAttributes GetRunAttributes() const override { return ERunAttributes::None; }
	virtual int32 GetBaseLine(float Scale) const override;
	virtual int32 GetMaxHeight(float Scale) const override;
	virtual FVector2D Measure(int32 StartIndex, int32 EndIndex, float Scale, const FRunTextContext& TextContext) const override;
	virtual float GetCaretOffset(const FTextRange& Stretch, int32 Index, float Scale, const FRunTextContext& TextContext) const override;
	virtual bool IsSameAs(const IRun& Other) const override { return this == &Other; }
	virtual void OnPaint(const FRunPlacement& Placement, const FGeometry& TextGeometry, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, ESlateDrawEffect DrawEffects) const override
	{
	}
	virtual TSharedPtr<SWidget> GetWidget() const override { return Info.Widget; }
	virtual FSlateRect GetWidgetRect(const FRunPlacement& Placement, float Scale) const override;

private:
	FSlateWidgetRun(const FRunInfo& InRunInfo, const FWidgetRunInfo& InWidgetInfo, const FTextRange& InRange);

	FVector2D GetSize() const;

	FRunInfo RunInfo;
	FWidgetRunInfo Info;
	FTextRange Range;
};
