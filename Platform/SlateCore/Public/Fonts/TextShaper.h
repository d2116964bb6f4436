// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"

namespace TextBiDi
{
enum class ETextDirection : uint8
{
	LeftToRight,
	RightToLeft,
	Mixed
};
}

enum class ETextShapingMethod : uint8
{
	Auto,
	/** Neither ligatures nor complex scripts: one glyph a character. */
	KerningOnly,
	FullShaping
};

/** In device pixels. */
struct FFontMetrics
{
	/** From the top of a line to the baseline. */
	float Ascent = 0.0f;
	float Descent = 0.0f;
	float LineHeight = 0.0f;
	/** From the baseline down to the middle of the underline. */
	float UnderlineOffset = 0.0f;
	float UnderlineThickness = 1.0f;
};

/** A stretch of text turned into glyphs. Immutable and shared; the desktop's own class holds the glyphs. */
class FShapedText
{
public:
	virtual ~FShapedText() = default;

	/** In device pixels. */
	float Width = 0.0f;

	/**
	 * For each UTF-16 unit the place before it, and a last one behind the text: Num() is the length + 1. In device pixels from the left
	 * edge, so from right to left they decrease: "ab" of 8 pixels each is 0, 8, 16, or 16, 8, 0.
	 */
	TArray<float> CaretOffsets;
};

/** Turns text into glyphs; implemented by the desktop. */
class ITextShaper
{
public:
	virtual ~ITextShaper() = default;

	/** Text of one direction; Scale is in device pixels per unit. */
	virtual TSharedRef<const FShapedText> Shape(
		FStringView Text, const FSlateFontInfo& Font, float Scale, TextBiDi::ETextDirection Direction, ETextShapingMethod Method) = 0;
	virtual FFontMetrics GetMetrics(const FSlateFontInfo& Font, float Scale) = 0;
};
