// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/SPanel.h"

int32 SPanel::OnPaint(const FPaintArgs& Args, const FGeometry&, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
	int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	return PaintArrangedChildren(Args, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, ShouldBeEnabled(bParentEnabled));
}
