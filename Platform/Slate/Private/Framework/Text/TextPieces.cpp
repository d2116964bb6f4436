// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Text/TextLayout.h"

#include "TextBoundaries.h"
#include "TextLine.h"

namespace
{
/** Makes the pieces of one wrapped line in the order of the text. */
class FPieceCutter
{
public:
	FPieceCutter(
		const FTextLine& InLine, const FWrappedLine& InWrapped, float InScale, ETextShapingMethod InMethod, TArray<FTextPiece>& InPieces)
		: Line(InLine)
		, Wrapped(InWrapped)
		, Scale(InScale)
		, Method(InMethod)
		, Pieces(InPieces)
	{
	}

	void Cut()
	{
		Pieces.Reset();
		for (int32 Index = Wrapped.FirstUnit; Index < Wrapped.EndUnit; ++Index)
		{
			AddUnit(Line.Measured.Units[Index], Index + 1 == Wrapped.EndUnit);
		}
		for (int32 Index = Pieces.Num() - 1; Index >= 0 && IsBlank(Pieces[Index]); --Index)
		{
			Pieces[Index].Level = Line.Measured.ParagraphLevel;
		}
	}

private:
	/** Blanks at the end of a line take the paragraph's direction, so they part from letters that have the other one. */
	void AddUnit(const FTextUnit& Unit, bool bIsLast)
	{
		const int32 Begin = FMath::Max(Unit.Begin, Wrapped.Range.BeginIndex);
		const int32 End = FMath::Min(Unit.End, Wrapped.Range.EndIndex);
		const int32 VisibleEnd = Unit.GetVisibleEnd();
		const bool bPartBlanks = bIsLast && Unit.Level != Line.Measured.ParagraphLevel && VisibleEnd > Begin && VisibleEnd < End;
		AddPiece(Unit, FTextRange(Begin, bPartBlanks ? VisibleEnd : End));
		if (bPartBlanks)
		{
			AddPiece(Unit, FTextRange(VisibleEnd, End));
		}
	}

	void AddPiece(const FTextUnit& Unit, const FTextRange& Range)
	{
		FTextPiece& Piece = Pieces.AddDefaulted_GetRef();
		Piece.Range = Range;
		Piece.RunIndex = Unit.RunIndex;
		Piece.Level = Unit.Level;
		Piece.Width = Range == Unit.GetRange() ? Unit.Width : Measure(Unit, Range);
	}

	float Measure(const FTextUnit& Unit, const FTextRange& Range) const
	{
		const FRunTextContext Context = MakeRunContext(Method, Unit.Level);
		return static_cast<float>(Line.Runs[Unit.RunIndex]->Measure(Range.BeginIndex, Range.EndIndex, Scale, Context).X);
	}

	bool IsBlank(const FTextPiece& Piece) const
	{
		const int32 VisibleEnd = Line.Measured.Units[Wrapped.EndUnit - 1].GetVisibleEnd();
		return Piece.Range.BeginIndex >= VisibleEnd;
	}

	const FTextLine& Line;
	const FWrappedLine& Wrapped;
	float Scale;
	ETextShapingMethod Method;
	TArray<FTextPiece>& Pieces;
};

void OrderVisually(TArray<FTextPiece>& Pieces)
{
	TArray<uint8> Levels;
	for (const FTextPiece& Piece : Pieces)
	{
		Levels.Add(Piece.Level);
	}
	TArray<int32> Order;
	TextBoundaries::ReorderVisually(Levels, Order);
	TArray<FTextPiece> Ordered;
	for (const int32 Index : Order)
	{
		Ordered.Add(Pieces[Index]);
	}
	Pieces = MoveTemp(Ordered);
}
} // namespace

void FTextLayout::GetPieces(const FTextLine& Line, const FWrappedLine& Wrapped, TArray<FTextPiece>& OutPieces) const
{
	FPieceCutter(Line, Wrapped, Scale, ShapingMethod, OutPieces).Cut();
	float TotalWidth = 0.0f;
	bool bPlain = true;
	for (const FTextPiece& Piece : OutPieces)
	{
		TotalWidth += Piece.Width;
		bPlain = bPlain && Piece.Level == 0;
	}
	if (!bPlain)
	{
		OrderVisually(OutPieces);
	}
	// Blanks at the end of a line hang over its edge: the left one where the paragraph runs from right to left.
	float X = (Line.Measured.ParagraphLevel & 1) != 0 ? Wrapped.Width - Wrapped.Indent - TotalWidth : Wrapped.Indent;
	for (FTextPiece& Piece : OutPieces)
	{
		Piece.X = X;
		X += Piece.Width;
	}
}

float FTextLayout::GetPieceCaret(const FTextLine& Line, const FTextPiece& Piece, int32 Offset) const
{
	if (Offset <= Piece.Range.BeginIndex || Offset >= Piece.Range.EndIndex)
	{
		const bool bAtLeft = (Offset <= Piece.Range.BeginIndex) != Piece.IsRightToLeft();
		return bAtLeft ? Piece.X : Piece.X + Piece.Width;
	}
	return Piece.X + Line.Runs[Piece.RunIndex]->GetCaretOffset(Piece.Range, Offset, Scale, MakeRunContext(ShapingMethod, Piece.Level));
}
