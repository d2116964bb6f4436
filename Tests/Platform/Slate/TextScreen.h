// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Layout/SlateRect.h"

class FReadableShapedText;
class FSlateDrawChunk;

/**
 * What a display list shows, as text: one line for each row, the letters from left to right as they stand on the screen. The caret is a
 * "|", what is selected stands in "[" and "]", what is being composed in "{" and "}". For fonts of one size that begin at the top, whose
 * letters are half as wide as a row is high.
 */
class FTextScreen
{
public:
	FTextScreen(const FSlateDrawChunk& DisplayList, const FLinearColor& SelectionColor, float InRowHeight);

	FString ToString() const;
	/** The letters at their places in a grid; without marks. */
	FString ToGrid() const;
	/** Where the letters of a row begin and end, in pixels. */
	float GetRowLeft(int32 Row) const { return Rows[Row][0].Left; }
	float GetRowRight(int32 Row) const { return Rows[Row].Last().Right; }

private:
	/** A letter, or a mark, which is as wide as nothing. */
	struct FPiece
	{
		float Left;
		float Right;
		FString Text;
	};

	void AddText(const FReadableShapedText& Text, const FSlateRect& Place, const FSlateRect& Clip);
	void AddBox(const FSlateRect& Place, bool bSelection);
	TArray<FPiece>& FindRow(float Top, TArray<TArray<FPiece>>& In) const;
	/** In letters. */
	float ToColumn(float Left) const { return Left / (RowHeight / 2.0f); }

	float RowHeight;
	TArray<TArray<FPiece>> Rows;
	TArray<TArray<FPiece>> Marks;
};
