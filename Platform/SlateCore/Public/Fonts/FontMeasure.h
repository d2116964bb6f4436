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

	/**
	 * A stretch of one line of a text, in units at scale 1, else in device pixels; control characters are as wide as blanks. Kerning with
	 * the character before it is asked for and never found, as the text layout shapes each stretch for itself.
	 */
	FVector2D Measure(FStringView Text, int32 StartIndex, int32 EndIndex, const FSlateFontInfo& Font, bool bIncludeKerningWithPrecedingChar,
		float Scale) const;

private:
	FShapedTextCache& Cache;
};
