// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Styling/SlateColor.h"

#include "Styling/WidgetStyle.h"

FSlateColor FSlateColor::UseForeground()
{
	return FSlateColor(ESlateColorStylingMode::UseColor_Foreground);
}

FSlateColor FSlateColor::UseSubduedForeground()
{
	return FSlateColor(ESlateColorStylingMode::UseColor_Foreground_Subdued);
}

FSlateColor FSlateColor::UseStyle()
{
	return FSlateColor(ESlateColorStylingMode::UseColor_UseStyle);
}

FLinearColor FSlateColor::GetColor(const FWidgetStyle& InWidgetStyle) const
{
	switch (ColorUseRule)
	{
	case ESlateColorStylingMode::UseColor_Specified:
		return SpecifiedColor;
	case ESlateColorStylingMode::UseColor_Foreground_Subdued:
		return InWidgetStyle.GetSubduedForegroundColor();
	default:
		return InWidgetStyle.GetForegroundColor();
	}
}

bool FSlateColor::operator==(const FSlateColor& Other) const
{
	return ColorUseRule == Other.ColorUseRule && (!IsColorSpecified() || SpecifiedColor == Other.SpecifiedColor);
}
