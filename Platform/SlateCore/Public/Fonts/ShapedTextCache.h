// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Fonts/TextShaper.h"

/**
 * Shaped text by what it depends on: font, scale, direction, method, text. Shared by all widgets and bounded: once a generation is full,
 * what was not asked for during the last one is dropped.
 */
class FShapedTextCache
{
public:
	/** At most this many UTF-16 units are kept per generation, of which two are alive. */
	static constexpr int32 UnitsPerGeneration = 1 << 19;

	explicit FShapedTextCache(ITextShaper& InShaper, int32 InUnitsPerGeneration = UnitsPerGeneration);
	~FShapedTextCache();

	/** Control characters, tabs among them, are shaped as blanks. */
	TSharedRef<const FShapedText> Shape(FStringView Text, const FSlateFontInfo& Font, float Scale,
		TextBiDi::ETextDirection Direction = TextBiDi::ETextDirection::LeftToRight, ETextShapingMethod Method = ETextShapingMethod::Auto);
	FFontMetrics GetMetrics(const FSlateFontInfo& Font, float Scale);

	/** How many times the shaper itself was asked. */
	int64 GetNumShaped() const { return NumShaped; }

private:
	struct FGeneration;

	void TurnGeneration();

	ITextShaper& Shaper;
	int32 Limit;
	int64 NumShaped = 0;
	TUniquePtr<FGeneration> Current;
	TUniquePtr<FGeneration> Previous;
};
