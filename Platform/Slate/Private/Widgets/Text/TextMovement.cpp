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

/** Behind the first line up lies the beginning of the text. */
FTextCaret Up(const FTextLayout& Layout, const FTextCaret& Caret, float Column, float Distance)
{
	const float Top = Layout.GetCaretRect(Caret).Top;
	const FTextCaret Target = Layout.GetCaretAt(FVector2D(Column, Top - Distance));
	return Layout.GetCaretRect(Target).Top < Top ? Target : FTextCaret();
}

FTextCaret Down(const FTextLayout& Layout, const FTextCaret& Caret, float Column, float Distance)
{
	const FSlateRect Rect = Layout.GetCaretRect(Caret);
	const FTextCaret Target = Layout.GetCaretAt(FVector2D(Column, Rect.Bottom + Distance));
	return Layout.GetCaretRect(Target).Top > Rect.Top ? Target : FTextCaret{Layout.GetEnd()};
}
} // namespace

FTextCaret MoveCaret(const FTextLayout& Layout, const FTextCaret& Caret, ETextMove Move, float Column, float PageHeight)
{
	// Into the neighbouring line, wherever in it.
	constexpr float OneLine = 0.5f;
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
	case ETextMove::LineUp:
		return Up(Layout, Caret, Column, OneLine);
	case ETextMove::LineDown:
		return Down(Layout, Caret, Column, OneLine);
	case ETextMove::PageUp:
		return Up(Layout, Caret, Column, FMath::Max(PageHeight, OneLine));
	case ETextMove::PageDown:
		return Down(Layout, Caret, Column, FMath::Max(PageHeight, OneLine));
	}
	return Caret;
}
