// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateBrush.h"

struct FSlateFontInfo;

/** What a style look-up yields where nothing was set. */
class FStyleDefaults
{
public:
	static const FSlateColor DefaultSlateColor;

	static float GetFloat() { return 0.0f; }
	static FVector2D GetVector2D() { return FVector2D(0.0, 0.0); }
	static const FLinearColor& GetColor();
	static const FSlateColor& GetSlateColor() { return DefaultSlateColor; }
	static const FMargin& GetMargin();

	/** Draws nothing. */
	static const FSlateBrush* GetNoBrush();
	static const FSlateFontInfo& GetFontInfo();
};
