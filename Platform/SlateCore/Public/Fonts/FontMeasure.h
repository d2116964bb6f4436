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

	/** The height of a line. */
	uint16 GetMaxCharacterHeight(const FSlateFontInfo& Font, float Scale = 1.0f) const;

private:
	FShapedTextCache& Cache;
};
