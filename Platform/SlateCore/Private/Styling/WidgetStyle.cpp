// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Styling/WidgetStyle.h"

namespace
{
constexpr float SubduedOpacity = 0.45f;
}

FWidgetStyle& FWidgetStyle::BlendColorAndOpacityTint(const FLinearColor& InTint)
{
	ColorAndOpacityTint = ColorAndOpacityTint * InTint;
	return *this;
}

FWidgetStyle& FWidgetStyle::SetForegroundColor(const FSlateColor& InForeground)
{
	ForegroundColor = InForeground.GetColor(*this);
	return *this;
}

FLinearColor FWidgetStyle::GetSubduedForegroundColor() const
{
	return ForegroundColor.CopyWithNewOpacity(ForegroundColor.A * SubduedOpacity);
}

bool FWidgetStyle::operator==(const FWidgetStyle& Other) const
{
	return ColorAndOpacityTint == Other.ColorAndOpacityTint && ForegroundColor == Other.ForegroundColor;
}
