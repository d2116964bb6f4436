// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

class FShapedTextCache;
struct FSlateFontInfo;

/** Sizes of plain text of one direction. */
class FSlateFontMeasure
{
public:
	explicit FSlateFontMeasure(FShapedTextCache& InCache)
		: Cache(InCache)
	{
	}

	/** In units at scale 1, else in device pixels: the widest line, and the height of all lines. */
	FVector2D Measure(FStringView Text, const FSlateFontInfo& Font, float Scale = 1.0f) const;
	FVector2D Measure(const FText& Text, const FSlateFontInfo& Font, float Scale = 1.0f) const;

	/**
	 * A stretch of one line of a text, control characters as wide as blanks. Kerning with the character before it is asked for and never
	 * found, as the text layout shapes each stretch for itself.
	 */
	FVector2D Measure(FStringView Text, int32 StartIndex, int32 EndIndex, const FSlateFontInfo& Font, bool bIncludeKerningWithPrecedingChar,
		float Scale) const;

	/** The height of a line. */
	uint16 GetMaxCharacterHeight(const FSlateFontInfo& Font, float Scale = 1.0f) const;

private:
	FShapedTextCache& Cache;
};
