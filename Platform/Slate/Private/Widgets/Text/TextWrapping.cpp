// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TextWrapping.h"

#include "Framework/Text/TextLayout.h"

FVector2D FTextWrapping::LayOut(FTextLayout& Layout, float Scale) const
{
	Layout.SetScale(Scale);
	const bool bSqueezed = bAutoWrapText && AllottedWidth > 0.0f;
	double WishedWidth = 0.0;
	if (bSqueezed && WrapTextAt > 0.0f)
	{
		Layout.SetWrappingWidth(WrapTextAt);
		Layout.UpdateIfNeeded();
		WishedWidth = Layout.GetSize().X;
	}
	Layout.SetWrappingWidth(FindWidth());
	Layout.UpdateIfNeeded();
	if (bSqueezed && WrapTextAt <= 0.0f)
	{
		WishedWidth = Layout.GetUnwrappedWidth();
	}
	return FVector2D(bSqueezed ? WishedWidth : Layout.GetSize().X, Layout.GetSize().Y);
}

float FTextWrapping::FindWidth() const
{
	if (!bAutoWrapText || AllottedWidth <= 0.0f)
	{
		return WrapTextAt;
	}
	return WrapTextAt > 0.0f ? FMath::Min(WrapTextAt, AllottedWidth) : AllottedWidth;
}
