// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Styling/WidgetStyle.h"

namespace
{
// Least that keeps a contrast of 4.5 to 1 on all grounds of the theme.
constexpr float SubduedOpacity = 0.65f;
} // namespace

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
