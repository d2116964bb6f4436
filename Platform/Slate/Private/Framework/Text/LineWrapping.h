// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "MeasuredText.h"

/** One line as it is seen. Positions are in device pixels. */
struct FWrappedLine
{
	/** How far in a line may begin, as a part of the width that it is wrapped at. */
	static constexpr float MaxIndentShare = 2.0f / 3.0f;

	FTextRange Range;
	/** The units that it holds; the first and the last may be cut by the line's range. */
	int32 FirstUnit = 0;
	int32 EndUnit = 0;
	/** Where its text begins: more than 0 where it goes on in a column of the line. */
	float Indent = 0.0f;
	/** With the indent; where text is wrapped without the blanks at its end, which hang over the edge. */
	float Width = 0.0f;
	/** From the top of the model line. */
	int32 Top = 0;
	int32 Height = 0;
	/** From the top of this line down to the baseline. */
	int32 Ascent = 0;

	int32 GetBottom() const { return Top + Height; }
};

/**
 * Breaks a measured line so that each piece fits into `Width`; not at all where that is infinite. A word that is wider than the
 * whole line is broken between graphemes, and a line holds at least one. Never yields less than one line.
 */
TArray<FWrappedLine> WrapLine(FStringView Text, const TArray<TSharedRef<IRun>>& Runs, const FMeasuredText& Measured, float Width,
	float Scale, ETextShapingMethod ShapingMethod);
