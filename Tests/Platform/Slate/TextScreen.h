// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Layout/SlateRect.h"

class FReadableShapedText;
class FSlateDrawChunk;

/**
 * What a display list shows, as text: one line for each row, the letters from left to right as they stand on the screen. The caret is a
 * "|", what is selected stands in "[" and "]", what is being composed in "{" and "}". For fonts of one size that begin at the top.
 */
class FTextScreen
{
public:
	FTextScreen(const FSlateDrawChunk& DisplayList, const FLinearColor& SelectionColor, float InRowHeight);

	FString ToString() const;
	/** The letters at their places in a grid of this width; without marks. */
	FString ToGrid(float LetterWidth) const;
	/** Where the letters of a row begin and end, in pixels. */
	float GetRowLeft(int32 Row) const;
	float GetRowRight(int32 Row) const;

private:
	struct FCell
	{
		float Left = 0.0f;
		float Right = 0.0f;
		FString Letter;
	};

	void Read(const FSlateDrawChunk& Chunk, FSlateRect Clip);
	void ReadText(const FReadableShapedText& Text, const FVector2D& TopLeft, const FSlateRect& Clip);
	void ReadBox(const FSlateRect& Rect, const FLinearColor& Tint);
	int32 FindRow(float Y) const;
	FString PrintRow(int32 Row) const;
	bool IsMarked(const TArray<FSlateRect>& Marks, int32 Row, const FCell& Cell) const;

	FLinearColor SelectionColor;
	float RowHeight;
	TArray<TArray<FCell>> Rows;
	TArray<FSlateRect> Selection;
	TArray<FSlateRect> Composition;
	TArray<FSlateRect> Carets;
};
