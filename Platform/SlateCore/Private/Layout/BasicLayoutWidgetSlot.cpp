// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Layout/BasicLayoutWidgetSlot.h"

void FBasicLayoutSlot::SetPadding(const FMargin& InPadding)
{
	if (Padding != InPadding)
	{
		Padding = InPadding;
		InvalidateOwner();
	}
}

void FBasicLayoutSlot::SetHorizontalAlignment(EHorizontalAlignment InAlignment)
{
	if (HAlign != InAlignment)
	{
		HAlign = InAlignment;
		InvalidateOwner();
	}
}

void FBasicLayoutSlot::SetVerticalAlignment(EVerticalAlignment InAlignment)
{
	if (VAlign != InAlignment)
	{
		VAlign = InAlignment;
		InvalidateOwner();
	}
}
