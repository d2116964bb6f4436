// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Fonts/FontMeasure.h"
#include "Fonts/ShapedTextCache.h"

/** What widgets ask of the drawing side: shaped text and its sizes. */
class FSlateRenderer
{
public:
	explicit FSlateRenderer(ITextShaper& Shaper)
		: ShapedTextCache(Shaper)
		, FontMeasure(MakeShared<FSlateFontMeasure>(ShapedTextCache))
	{
	}

	TSharedRef<FSlateFontMeasure> GetFontMeasureService() const { return FontMeasure; }
	FShapedTextCache& GetShapedTextCache() { return ShapedTextCache; }

private:
	FShapedTextCache ShapedTextCache;
	TSharedRef<FSlateFontMeasure> FontMeasure;
};
