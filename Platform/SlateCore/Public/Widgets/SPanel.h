// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Widgets/SWidget.h"

/** A widget that only places its children. */
class SPanel : public SWidget
{
protected:
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
};
