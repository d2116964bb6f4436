// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Text/TextLocation.h"
#include "LineWrapping.h"

/** A model line with what is known of it. */
struct FTextLine
{
	FTextLine(const TSharedRef<FString>& InText, TArray<TSharedRef<IRun>> InRuns)
		: Text(InText)
		, Runs(MoveTemp(InRuns))
	{
	}

	TSharedRef<FString> Text;
	TArray<TSharedRef<IRun>> Runs;

	FMeasuredText Measured;
	TArray<FWrappedLine> WrappedLines;
	/** The width at which they were wrapped, in device pixels. */
	float WrappedAt = 0.0f;
	bool bIsMeasured = false;
	bool bIsWrapped = false;

	/** Whether some run is a widget; unset until asked for. */
	TOptional<bool> bHasWidgets;
	/** Its place in the layout. */
	int32 Index = 0;
	/** In device pixels; the top is from the layout's first line. */
	double Top = 0.0;
	float Width = 0.0f;
	float UnwrappedWidth = 0.0f;

	int32 GetHeight() const { return WrappedLines.Last().GetBottom(); }
	bool HasSameContent(const FString& OtherText, const TArray<TSharedRef<IRun>>& OtherRuns) const;

	/** The wrapped line at `Y`, counted from this line's top, and the one that begins at or before an offset; the nearest if outside. */
	int32 FindWrappedAt(double Y) const;
	int32 FindWrapped(int32 Offset) const;

	/** What of this line is selected; ends behind the text where the line end is selected too. */
	FTextRange GetSelectedRange(const FTextSelection& Selection) const;
};

/** A unit, or a part of one, on a wrapped line. */
struct FTextPiece
{
	FTextRange Range;
	int32 RunIndex = 0;
	uint8 Level = 0;
	/** In device pixels, from the left edge of the wrapped line. */
	float X = 0.0f;
	float Width = 0.0f;

	bool IsRightToLeft() const { return (Level & 1) != 0; }
};
