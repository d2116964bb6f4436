// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateColor.h"

/** What a widget inherits from those around it: a tint, and the color of text and icons. */
class FWidgetStyle
{
public:
	FWidgetStyle& BlendColorAndOpacityTint(const FLinearColor& InTint);

	/** A color that is itself inherited keeps the present one. */
	FWidgetStyle& SetForegroundColor(const FSlateColor& InForeground);

	const FLinearColor& GetColorAndOpacityTint() const { return ColorAndOpacityTint; }
	const FLinearColor& GetForegroundColor() const { return ForegroundColor; }
	FLinearColor GetSubduedForegroundColor() const;

	bool operator==(const FWidgetStyle& Other) const;

private:
	FLinearColor ColorAndOpacityTint = FLinearColor(1.0f, 1.0f, 1.0f, 1.0f);
	FLinearColor ForegroundColor = FLinearColor(1.0f, 1.0f, 1.0f, 1.0f);
};
