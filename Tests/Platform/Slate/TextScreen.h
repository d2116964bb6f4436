// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Application/SlateDesktop.h"
#include "Fonts/TextShaper.h"

class FSlateDrawChunk;

/** Shaped text that still knows its letters, so that a test can read what was painted. */
class FReadableShapedText final : public FShapedText
{
public:
	FString Letters;
};

/**
 * A font whose letters are as wide as its size: 10 points at scale 1 are 10 pixels, a line is twice as high. What continues a character, be
 * it the second half of a pair, a combining mark or what is joined by U+200D, takes no room.
 */
class FFixedWidthShaper final : public ITextShaper
{
public:
	virtual TSharedRef<const FShapedText> Shape(
		FStringView Text, const FSlateFontInfo& Font, float Scale, TextBiDi::ETextDirection Direction, ETextShapingMethod Method) override;
	virtual FFontMetrics GetMetrics(const FSlateFontInfo& Font, float Scale) override;
};

/** A machine without a window: a clipboard, and what the application told it. */
class FTextTestDesktop final : public ISlateDesktop
{
public:
	virtual ITextShaper& GetTextShaper() override { return Shaper; }
	virtual FString GetClipboardText() override { return Clipboard; }
	virtual void SetClipboardText(const FString& Text) override { Clipboard = Text; }
	virtual void LaunchURL(const FString&) override {}
	virtual void RequestFrame() override {}
	virtual void SetCursor(EMouseCursor::Type InCursor) override { Cursor = InCursor; }
	virtual void SetTextInputArea(bool bEnabled, const FSlateRect& CaretRect) override;

	FFixedWidthShaper Shaper;
	FString Clipboard;
	EMouseCursor::Type Cursor = EMouseCursor::Default;
	/** Unset while no text can be composed. */
	TOptional<FSlateRect> InputArea;
};

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
