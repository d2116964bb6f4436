// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Fonts/SlateFontInfo.h"
#include "Styling/ISlateStyle.h"

/** The look that the controls fall back to, and the fonts. */
class FCoreStyle
{
public:
	static const ISlateStyle& Get();

	/** Size in points. */
	static FSlateFontInfo GetDefaultFontStyle(
		const FName& InTypefaceFontName, float InSize, const FFontOutlineSettings& InOutlineSettings = FFontOutlineSettings());
};
