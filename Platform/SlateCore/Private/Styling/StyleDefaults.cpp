// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Styling/StyleDefaults.h"

#include "Brushes/SlateNoResource.h"
#include "Fonts/SlateFontInfo.h"

constinit const FSlateColor FStyleDefaults::DefaultSlateColor(FLinearColor::White);

const FLinearColor& FStyleDefaults::GetColor()
{
	return FLinearColor::White;
}

const FMargin& FStyleDefaults::GetMargin()
{
	static const FMargin None;
	return None;
}

const FSlateBrush* FStyleDefaults::GetNoBrush()
{
	static const FSlateNoResource NoBrush;
	return &NoBrush;
}

const FSlateFontInfo& FStyleDefaults::GetFontInfo()
{
	static const FSlateFontInfo Font;
	return Font;
}
