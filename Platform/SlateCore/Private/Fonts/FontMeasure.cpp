// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Fonts/FontMeasure.h"

#include "Fonts/ShapedTextCache.h"

FVector2D FSlateFontMeasure::Measure(FStringView Text, const FSlateFontInfo& Font, float Scale) const
{
	float Widest = 0.0f;
	int32 NumLines = 0;
	for (int32 Start = 0; Start <= Text.Len();)
	{
		int32 End = Start;
		while (End < Text.Len() && Text[End] != u'\n')
		{
			++End;
		}
		Widest = FMath::Max(Widest, Cache.Shape(Text.Mid(Start, End - Start), Font, Scale)->Width);
		++NumLines;
		Start = End + 1;
	}
	return FVector2D(Widest, NumLines * Cache.GetMetrics(Font, Scale).LineHeight);
}

FVector2D FSlateFontMeasure::Measure(const FText& Text, const FSlateFontInfo& Font, float Scale) const
{
	return Measure(FStringView(Text.ToString()), Font, Scale);
}

FVector2D FSlateFontMeasure::Measure(FStringView Text, int32 StartIndex, int32 EndIndex, const FSlateFontInfo& Font,
	bool bIncludeKerningWithPrecedingChar, float Scale) const
{
	return FVector2D(
		Cache.Shape(Text.Mid(StartIndex, EndIndex - StartIndex), Font, Scale)->Width, Cache.GetMetrics(Font, Scale).LineHeight);
}

uint16 FSlateFontMeasure::GetMaxCharacterHeight(const FSlateFontInfo& Font, float Scale) const
{
	return static_cast<uint16>(FMath::CeilToInt(Cache.GetMetrics(Font, Scale).LineHeight));
}
