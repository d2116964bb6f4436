// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Text/IRun.h"
#include "Templates/SharedPointer.h"

/**
 * The smallest stretch that is measured and shaped: of one run and one bidi level, without a place to wrap in it, at most
 * `MaxUnitLength` long. Blanks at which a line may be wrapped belong to the unit before them: "one two" is "one " and "two".
 */
struct FTextUnit
{
	static constexpr int32 MaxUnitLength = 64;

	int32 Begin = 0;
	int32 End = 0;
	int32 RunIndex = 0;
	/** In device pixels, with and without the blanks at its end. A unit of blanks has no visible width. */
	float Width = 0.0f;
	float VisibleWidth = 0.0f;
	uint8 BlankCount = 0;
	uint8 Level = 0;
	bool bCanWrapAfter = false;
	/** Behind it a column begins, in which wrapped text goes on. */
	bool bIndents = false;

	FTextRange GetRange() const { return FTextRange(Begin, End); }
	int32 GetVisibleEnd() const { return End - BlankCount; }
};

/** What a line's model text and runs measure at some scale, whatever the width it is wrapped at. */
struct FMeasuredText
{
	/** In device pixels above and below the baseline. */
	struct FRunHeight
	{
		int32 Above = 0;
		int32 Below = 0;
	};

	/** In the order of the text, without gaps. */
	TArray<FTextUnit> Units;
	/** One for each run. */
	TArray<FRunHeight> RunHeights;
	uint8 ParagraphLevel = 0;
	bool bHasTabs = false;

	/** Of all units on one line, without the blanks at its end. */
	float GetWidth() const;
};

/** Measures a line. `Runs` follow each other over the whole of `Text`. */
FMeasuredText MeasureText(FStringView Text, const TArray<TSharedRef<IRun>>& Runs, float Scale, ETextShapingMethod ShapingMethod);

/** The context in which a stretch of `Level` is measured, shaped and asked for carets. */
FRunTextContext MakeRunContext(ETextShapingMethod ShapingMethod, uint8 Level);
