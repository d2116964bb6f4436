// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Fonts/FontMeasure.h"

#include "Fonts/ShapedTextCache.h"

FVector2D FSlateFontMeasure::Measure(FStringView Text, int32 StartIndex, int32 EndIndex, const FSlateFontInfo& Font,
	bool bIncludeKerningWithPrecedingChar, float Scale) const
{
	return FVector2D(
		Cache.Shape(Text.Mid(StartIndex, EndIndex - StartIndex), Font, Scale)->Width, Cache.GetMetrics(Font, Scale).LineHeight);
}
