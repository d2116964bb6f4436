// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Text/TextLayout.h"

#include "Containers/StringView.h"
#include "TextBoundaries.h"
#include "TextLine.h"

#include <limits>

namespace
{
/** How far a selected line end reaches, as a part of the line's height. */
constexpr float LineEndWidth = 0.25f;

const FTextPiece& FindPieceAt(const TArray<FTextPiece>& Pieces, float X)
{
	for (const FTextPiece& Piece : Pieces)
	{
		if (X < Piece.X + Piece.Width)
		{
			return Piece;
		}
	}
	return Pieces.Last();
}

/** Adds a stretch of a line; touching stretches become one. */
void AddStretch(TArray<FSlateRect>& Rects, int32 FirstOfLine, const FSlateRect& Rect)
{
	if (Rects.Num() > FirstOfLine && FMath::Abs(Rects.Last().Right - Rect.Left) < 0.5f)
	{
		Rects.Last().Right = Rect.Right;
		return;
	}
	Rects.Add(Rect);
}
} // namespace

const FTextLine& FTextLayout::FindWrappedAt(const FVector2D& Position, const FWrappedLine*& OutWrapped, float& OutX) const
{
	check(!bNeedsUpdate && !Lines.IsEmpty());
	const FVector2D Local = Position - GetTextOrigin();
	const FTextLine& Line = *Lines[FindLineAt(Local.Y)];
	OutWrapped = &Line.WrappedLines[Line.FindWrappedAt(Local.Y - Line.Top)];
	OutX = static_cast<float>(Local.X) - GetLineLeft(Line, *OutWrapped);
	return Line;
}

FTextCaret FTextLayout::GetCaretAt(const FVector2D& Position) const
{
	const FWrappedLine* Wrapped = nullptr;
	float X = 0.0f;
	const FTextLine& Line = FindWrappedAt(Position, Wrapped, X);
	const FTextRange Grapheme = FindGraphemeAt(Line, *Wrapped, X);
	const float ToBegin = FMath::Abs(GetCaretX(Line, *Wrapped, Grapheme.BeginIndex) - X);
	const float ToEnd = FMath::Abs(GetCaretX(Line, *Wrapped, Grapheme.EndIndex) - X);
	const int32 Offset = ToBegin <= ToEnd ? Grapheme.BeginIndex : Grapheme.EndIndex;
	const bool bIsLast = Wrapped == &Line.WrappedLines.Last();
	return {FTextLocation(Line.Index, Offset), !bIsLast && Offset == Wrapped->Range.EndIndex};
}

FTextLocation FTextLayout::GetCharacterAt(const FVector2D& Position) const
{
	const FWrappedLine* Wrapped = nullptr;
	float X = 0.0f;
	const FTextLine& Line = FindWrappedAt(Position, Wrapped, X);
	return FTextLocation(Line.Index, FindGraphemeAt(Line, *Wrapped, X).BeginIndex);
}

FTextRange FTextLayout::FindGraphemeAt(const FTextLine& Line, const FWrappedLine& Wrapped, float X) const
{
	TArray<FTextPiece> Pieces;
	GetPieces(Line, Wrapped, Pieces);
	FTextRange Nearest(Wrapped.Range.BeginIndex, Wrapped.Range.BeginIndex);
	if (Pieces.IsEmpty())
	{
		return Nearest;
	}
	const FTextPiece& Piece = FindPieceAt(Pieces, X);
	float Distance = std::numeric_limits<float>::max();
	float Caret = GetPieceCaret(Line, Piece, Piece.Range.BeginIndex);
	for (int32 Begin = Piece.Range.BeginIndex; Begin < Piece.Range.EndIndex;)
	{
		const int32 End = FMath::Min(TextBoundaries::NextGrapheme(*Line.Text, Begin), Piece.Range.EndIndex);
		const float NextCaret = GetPieceCaret(Line, Piece, End);
		const float Here = FMath::Max(FMath::Max(FMath::Min(Caret, NextCaret) - X, X - FMath::Max(Caret, NextCaret)), 0.0f);
		if (Here < Distance)
		{
			Nearest = FTextRange(Begin, End);
			Distance = Here;
		}
		Begin = End;
		Caret = NextCaret;
	}
	return Nearest;
}

const FTextLine& FTextLayout::FindWrapped(const FTextCaret& Caret, const FWrappedLine*& OutWrapped) const
{
	check(!bNeedsUpdate);
	const FTextLine& Line = *Lines[Caret.Location.GetLineIndex()];
	const int32 Offset = Caret.Location.GetOffset();
	const int32 Index = Line.FindWrapped(Offset);
	const bool bStaysBefore = Caret.bAtWrapEnd && Index > 0 && Line.WrappedLines[Index].Range.BeginIndex == Offset;
	OutWrapped = &Line.WrappedLines[bStaysBefore ? Index - 1 : Index];
	return Line;
}

FSlateRect FTextLayout::GetCaretRect(const FTextCaret& Caret) const
{
	const FWrappedLine* Wrapped = nullptr;
	const FTextLine& Line = FindWrapped(Caret, Wrapped);
	const FVector2D Origin = GetTextOrigin();
	float X = GetLineLeft(Line, *Wrapped) + GetCaretX(Line, *Wrapped, Caret.Location.GetOffset());
	if (WrappingWidth > 0.0f)
	{
		// A caret behind blanks that hang over the edge stays at the edge.
		X = FMath::Clamp(X, 0.0f, GetJustificationWidth());
	}
	X += static_cast<float>(Origin.X);
	const float Top = static_cast<float>(Origin.Y + Line.Top + Wrapped->Top);
	return FSlateRect(X, Top, X, Top + Wrapped->Height);
}

float FTextLayout::GetCaretX(const FTextLine& Line, const FWrappedLine& Wrapped, int32 Offset) const
{
	TArray<FTextPiece> Pieces;
	GetPieces(Line, Wrapped, Pieces);
	for (const FTextPiece& Piece : Pieces)
	{
		if (Piece.Range.Contains(Offset) || (Offset == Wrapped.Range.EndIndex && Piece.Range.EndIndex == Offset))
		{
			return GetPieceCaret(Line, Piece, Offset);
		}
	}
	return 0.0f;
}

FTextCaret FTextLayout::GetWrappedLineBegin(const FTextCaret& Caret) const
{
	const FWrappedLine* Wrapped = nullptr;
	FindWrapped(Caret, Wrapped);
	return {FTextLocation(Caret.Location.GetLineIndex(), Wrapped->Range.BeginIndex), false};
}

FTextCaret FTextLayout::GetWrappedLineEnd(const FTextCaret& Caret) const
{
	const FWrappedLine* Wrapped = nullptr;
	const FTextLine& Line = FindWrapped(Caret, Wrapped);
	const bool bIsLast = Wrapped == &Line.WrappedLines.Last();
	return {FTextLocation(Caret.Location.GetLineIndex(), Wrapped->Range.EndIndex), !bIsLast};
}

void FTextLayout::GetSelectionRects(const FTextSelection& Selection, const FSlateRect& VisibleArea, TArray<FSlateRect>& OutRects) const
{
	TArray<FTextPiece> Pieces;
	ForEachVisibleLine(VisibleArea.Top, VisibleArea.Bottom,
		[&](const FTextLine& Line, const FWrappedLine& Wrapped, const FVector2D& TopLeft)
		{
			const FTextRange Selected = Line.GetSelectedRange(Selection);
			const bool bLineEnd = Selected.EndIndex > Line.Text->Len() && &Wrapped == &Line.WrappedLines.Last();
			const float Left = static_cast<float>(TopLeft.X);
			const float Top = static_cast<float>(TopLeft.Y);
			const int32 FirstOfLine = OutRects.Num();
			GetPieces(Line, Wrapped, Pieces);
			for (const FTextPiece& Piece : Pieces)
			{
				const int32 Begin = FMath::Max(Selected.BeginIndex, Piece.Range.BeginIndex);
				const int32 End = FMath::Min(Selected.EndIndex, Piece.Range.EndIndex);
				if (Begin < End)
				{
					const float A = Left + GetPieceCaret(Line, Piece, Begin);
					const float B = Left + GetPieceCaret(Line, Piece, End);
					AddStretch(OutRects, FirstOfLine, FSlateRect(FMath::Min(A, B), Top, FMath::Max(A, B), Top + Wrapped.Height));
				}
			}
			if (bLineEnd)
			{
				const float X = Left + GetCaretX(Line, Wrapped, Line.Text->Len());
				AddStretch(OutRects, FirstOfLine, FSlateRect(X, Top, X + LineEndWidth * Wrapped.Height, Top + Wrapped.Height));
			}
		});
}
