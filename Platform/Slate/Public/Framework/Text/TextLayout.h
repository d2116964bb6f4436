// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Text/IRun.h"
#include "Framework/Text/TextLocation.h"
#include "Layout/Margin.h"
#include "Layout/SlateRect.h"
#include "Templates/SharedPointer.h"

struct FTextLine;
struct FTextPiece;
struct FWrappedLine;

namespace ETextJustify
{
/** Left is where the paragraph begins, so it means right for a paragraph that runs from right to left. */
enum Type : uint8
{
	Left,
	Center,
	Right
};
} // namespace ETextJustify

enum class ETextWrappingPolicy : uint8
{
	/** Between words; a word that is wider than the whole line is broken between characters. */
	DefaultWrapping
};

/** A caret where a line is wrapped stands at the beginning of the new line, or at the end of the one before. */
struct FTextCaret
{
	FTextLocation Location;
	bool bAtWrapEnd = false;

	bool operator==(const FTextCaret&) const = default;
};

/**
 * Model lines of styled runs, wrapped at a width. Positions are in device pixels from the top left corner, the margin included;
 * widths, margins and sizes that are set or asked for are in units.
 *
 * A line keeps what it measures until its text, its runs or the scale change. That holds across `ClearLines` too: a new line that
 * equals the old one in its place takes over that one's runs and measurements, so that setting a text that has only grown costs its new
 * lines. A layout that is given the very lines of another long one takes copies of its measurements.
 */
class FTextLayout : public TSharedFromThis<FTextLayout>
{
public:
	struct FNewLineData
	{
		/** Belongs to its line alone: the very same string again, in this layout or another, means the same line. */
		TSharedRef<FString> Text;
		/** They follow each other over the whole text; none at all means one run in the default style. */
		TArray<TSharedRef<IRun>> Runs;
	};

	FTextLayout();
	virtual ~FTextLayout();

	FTextLayout(const FTextLayout&) = delete;
	FTextLayout& operator=(const FTextLayout&) = delete;

	void ClearLines();
	void AddLines(const TArray<FNewLineData>& NewLines);
	/** Puts the new lines in the place of `Count` lines. */
	void ReplaceLines(int32 FirstLine, int32 Count, const TArray<FNewLineData>& NewLines);

	int32 GetLineCount() const { return Lines.Num(); }
	const FString& GetLineText(int32 LineIndex) const;
	FTextLocation GetEnd() const;
	/** The model text of all lines, or of a part, with newlines between them. */
	void GetAsText(FString& OutText) const;
	void GetSelectionAsText(FString& OutText, const FTextSelection& Selection) const;

	void SetScale(float InScale);
	/** Zero or less means that lines are not wrapped. */
	void SetWrappingWidth(float Width);
	/** The width in which lines are justified, where it is more than they take. */
	void SetViewWidth(float Width);
	void SetMargin(const FMargin& InMargin);
	void SetJustification(ETextJustify::Type InJustification);
	void SetTextShapingMethod(ETextShapingMethod InMethod);
	/**
	 * Whether tabs of neighbouring lines lead to common stops, and whether what is wrapped goes on below its cell or its list item. If not,
	 * a tab is as wide as its run says.
	 */
	void SetKeepsColumns(bool bInKeepsColumns);
	/** Measures a line anew, since a run of it has changed its size. */
	void DirtyLine(int32 LineIndex);

	void UpdateIfNeeded();
	/** In units; the text must be up to date for this and all that follows. */
	FVector2D GetSize() const;
	/** As wide as the text would be if no line were wrapped. */
	float GetUnwrappedWidth() const;

	/** The nearest place for a caret, and the character under a point. */
	FTextCaret GetCaretAt(const FVector2D& Position) const;
	FTextLocation GetCharacterAt(const FVector2D& Position) const;
	/** A rectangle without a width. */
	FSlateRect GetCaretRect(const FTextCaret& Caret) const;
	/** The ends of the wrapped line that the caret is on. */
	FTextCaret GetWrappedLineBegin(const FTextCaret& Caret) const;
	FTextCaret GetWrappedLineEnd(const FTextCaret& Caret) const;
	/** What a selection covers on the lines that meet `VisibleArea`. A selected line end shows as a little space. */
	void GetSelectionRects(const FTextSelection& Selection, const FSlateRect& VisibleArea, TArray<FSlateRect>& OutRects) const;
	bool IsRightToLeft(int32 LineIndex) const;

	/** All wrapped lines and runs, one a line, for tests and bug reports. */
	FString ToDebugString() const;

	/** A run in the layout's own style. */
	virtual TSharedRef<IRun> CreateDefaultTextRun(const TSharedRef<FString>& NewText, const FTextRange& NewRange) const = 0;

protected:
	float GetScale() const { return Scale; }
	ETextShapingMethod GetTextShapingMethod() const { return ShapingMethod; }
	const TArray<TSharedRef<FTextLine>>& GetLines() const { return Lines; }

	/** Calls `Visitor(const FTextLine&, const FWrappedLine&, FVector2D TopLeft)` for the wrapped lines that meet the rows. */
	void ForEachVisibleLine(
		float Top, float Bottom, const TFunction<void(const FTextLine&, const FWrappedLine&, const FVector2D&)>& Visitor) const;
	/** The pieces of a wrapped line from left to right, from its left edge. */
	void GetPieces(const FTextLine& Line, const FWrappedLine& Wrapped, TArray<FTextPiece>& OutPieces) const;
	FVector2D GetTopLeft(const FTextLine& Line, const FWrappedLine& Wrapped) const;

	/** The set of runs has changed. */
	virtual void OnLinesChanged() = 0;

private:
	/** Puts copies of lines that another layout has of the same strings in the place of the old ones. */
	void CopyLinesOfTwin(const TArray<FNewLineData>& NewLines);
	const FTextLayout* FindTwin(const TArray<FNewLineData>& NewLines) const;
	TSharedRef<FTextLine> MakeLine(const FNewLineData& Data, int32 Index) const;
	void InvalidateMeasurements();
	void MeasureLine(FTextLine& Line) const;
	void WrapLine(FTextLine& Line, float Width) const;
	float ToUnits(float Width) const;
	/** Without the margin; infinite where lines are not wrapped. */
	float GetWrappingWidthInPixels() const;
	/** The width in which lines are justified, in device pixels and without the margin. */
	float GetJustificationWidth() const;
	FVector2D GetTextOrigin() const;
	/** From the origin; what justification decides. */
	float GetLineLeft(const FTextLine& Line, const FWrappedLine& Wrapped) const;
	int32 FindLineAt(double Y) const;
	const FTextLine& FindWrapped(const FTextCaret& Caret, const FWrappedLine*& OutWrapped) const;
	float GetCaretX(const FTextLine& Line, const FWrappedLine& Wrapped, int32 Offset) const;
	const FTextLine& FindWrappedAt(const FVector2D& Position, const FWrappedLine*& OutWrapped, float& OutX) const;
	FTextRange FindGraphemeAt(const FTextLine& Line, const FWrappedLine& Wrapped, float X) const;
	float GetPieceCaret(const FTextLine& Line, const FTextPiece& Piece, int32 Offset) const;

	TArray<TSharedRef<FTextLine>> Lines;
	/** The lines before `ClearLines`, kept until the next update. */
	TArray<TSharedRef<FTextLine>> OldLines;
	FMargin Margin;
	float Scale = 1.0f;
	float WrappingWidth = 0.0f;
	float ViewWidth = 0.0f;
	ETextJustify::Type Justification = ETextJustify::Left;
	ETextShapingMethod ShapingMethod = ETextShapingMethod::Auto;
	/** Of all wrapped lines, in device pixels and without the margin. */
	float TextWidth = 0.0f;
	float UnwrappedWidth = 0.0f;
	double TextHeight = 0.0;
	bool bKeepsColumns = false;
	bool bNeedsUpdate = true;
};
