// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TextMovement.h"

#include "Containers/StringView.h"
#include "Framework/Text/TextBoundaries.h"

namespace
{
FTextLocation Back(const FTextLayout& Layout, const FTextLocation& From, int32 (*Step)(FStringView, int32))
{
	if (From.GetOffset() > 0)
	{
		return FTextLocation(From.GetLineIndex(), Step(Layout.GetLineText(From.GetLineIndex()), From.GetOffset()));
	}
	const int32 Line = FMath::Max(From.GetLineIndex() - 1, 0);
	return Line < From.GetLineIndex() ? FTextLocation(Line, Layout.GetLineText(Line).Len()) : From;
}

FTextLocation Forward(const FTextLayout& Layout, const FTextLocation& From, int32 (*Step)(FStringView, int32))
{
	const FString& Line = Layout.GetLineText(From.GetLineIndex());
	if (From.GetOffset() < Line.Len())
	{
		return FTextLocation(From.GetLineIndex(), Step(Line, From.GetOffset()));
	}
	return From.GetLineIndex() + 1 < Layout.GetLineCount() ? FTextLocation(From.GetLineIndex() + 1, 0) : From;
}

/** Where a point in that height is on no line above the caret's, the text begins. */
FTextCaret Up(const FTextLayout& Layout, const FTextCaret& Caret, float Column, float Y)
{
	const FTextCaret Target = Layout.GetCaretAt(FVector2D(Column, Y));
	return Layout.GetCaretRect(Target).Top < Layout.GetCaretRect(Caret).Top ? Target : FTextCaret();
}

FTextCaret Down(const FTextLayout& Layout, const FTextCaret& Caret, float Column, float Y)
{
	const FTextCaret Target = Layout.GetCaretAt(FVector2D(Column, Y));
	return Layout.GetCaretRect(Target).Top > Layout.GetCaretRect(Caret).Top ? Target : FTextCaret{Layout.GetEnd()};
}

FTextCaret MoveVertically(const FTextLayout& Layout, const FTextCaret& Caret, ETextMove Move, float Column, float PageHeight)
{
	// Any height within the neighbouring line will do; a page is counted from the middle of the line.
	constexpr float IntoLine = 0.5f;
	const FSlateRect Rect = Layout.GetCaretRect(Caret);
	const float Middle = (Rect.Top + Rect.Bottom) / 2.0f;
	switch (Move)
	{
	case ETextMove::LineUp:
		return Up(Layout, Caret, Column, Rect.Top - IntoLine);
	case ETextMove::LineDown:
		return Down(Layout, Caret, Column, Rect.Bottom + IntoLine);
	case ETextMove::PageUp:
		return Up(Layout, Caret, Column, FMath::Min(Middle - PageHeight, Rect.Top - IntoLine));
	default:
		return Down(Layout, Caret, Column, FMath::Max(Middle + PageHeight, Rect.Bottom + IntoLine));
	}
}
} // namespace

FTextCaret MoveCaret(const FTextLayout& Layout, const FTextCaret& Caret, ETextMove Move, float Column, float PageHeight)
{
	switch (Move)
	{
	case ETextMove::PreviousCharacter:
		return {Back(Layout, Caret.Location, &TextBoundaries::PreviousGrapheme)};
	case ETextMove::NextCharacter:
		return {Forward(Layout, Caret.Location, &TextBoundaries::NextGrapheme)};
	case ETextMove::PreviousWord:
		return {Back(Layout, Caret.Location, &TextBoundaries::PreviousWordBegin)};
	case ETextMove::NextWord:
		return {Forward(Layout, Caret.Location, &TextBoundaries::NextWordBegin)};
	case ETextMove::LineBegin:
		return Layout.GetWrappedLineBegin(Caret);
	case ETextMove::LineEnd:
		return Layout.GetWrappedLineEnd(Caret);
	case ETextMove::TextBegin:
		return {};
	case ETextMove::TextEnd:
		return {Layout.GetEnd()};
	default:
		return MoveVertically(Layout, Caret, Move, Column, PageHeight);
	}
}
