// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

class FWidgetStyle;

enum class ESlateColorStylingMode : uint8
{
	UseColor_Specified,
	UseColor_Foreground,
	UseColor_Foreground_Subdued,
	UseColor_UseStyle
};

/** A color, or the rule by which it is taken from the surrounding widgets. */
struct FSlateColor
{
	constexpr FSlateColor() = default;
	constexpr FSlateColor(const FLinearColor& InColor)
		: SpecifiedColor(InColor)
	{
	}

	static FSlateColor UseForeground();
	static FSlateColor UseSubduedForeground();
	/** The widget's own style decides; as a color it counts as the foreground. */
	static FSlateColor UseStyle();

	/** The color on screen within the given surroundings. */
	FLinearColor GetColor(const FWidgetStyle& InWidgetStyle) const;

	/** Only meaningful where IsColorSpecified. */
	const FLinearColor& GetSpecifiedColor() const { return SpecifiedColor; }
	bool IsColorSpecified() const { return ColorUseRule == ESlateColorStylingMode::UseColor_Specified; }

	bool operator==(const FSlateColor& Other) const;

private:
	constexpr explicit FSlateColor(ESlateColorStylingMode InRule)
		: ColorUseRule(InRule)
	{
	}

	FLinearColor SpecifiedColor = FLinearColor(1.0f, 1.0f, 1.0f, 1.0f);
	ESlateColorStylingMode ColorUseRule = ESlateColorStylingMode::UseColor_Specified;
};
