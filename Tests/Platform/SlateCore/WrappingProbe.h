// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Widgets/SLeafWidget.h"

/** As text that wraps: its area stays, so its height follows from the width that it is given. */
class SWrappingProbe : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SWrappingProbe) {}
	SLATE_ARGUMENT_DEFAULT(float, Area) = 1000.0f;
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs) { Area = InArgs._Area; }
	void SetArea(float InArea)
	{
		Area = InArea;
		Invalidate(EInvalidateWidgetReason::Layout);
	}

	mutable int32 NumSized = 0;

protected:
	FVector2D ComputeDesiredSize(float) const override
	{
		++NumSized;
		return FVector2D(10.0, Width > 0.0f ? Area / Width : 0.0);
	}
	void OnArranged(const FGeometry& AllottedGeometry) override
	{
		const float NewWidth = static_cast<float>(AllottedGeometry.GetLocalSize().X);
		if (Width != NewWidth)
		{
			Width = NewWidth;
			Invalidate(EInvalidateWidgetReason::Layout);
		}
	}
	int32 OnPaint(const FPaintArgs&, const FGeometry&, const FSlateRect&, FSlateWindowElementList&, int32 LayerId, const FWidgetStyle&,
		bool) const override
	{
		return LayerId;
	}

private:
	float Area = 0.0f;
	float Width = 0.0f;
};
