// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Text/TextLayout.h"

/** In the order of the text, whatever its direction on screen. */
enum class ETextMove : uint8
{
	PreviousCharacter,
	NextCharacter,
	PreviousWord,
	NextWord,
	LineBegin,
	LineEnd,
	TextBegin,
	TextEnd,
	LineUp,
	LineDown,
	PageUp,
	PageDown
};

/** Whether the moves up and down keep to one column, which they are given. */
constexpr bool IsVerticalMove(ETextMove Move)
{
	return Move >= ETextMove::LineUp;
}

/** Where a caret goes. Lengths are in device pixels; `Column` counts for vertical moves only. The layout must be up to date. */
FTextCaret MoveCaret(const FTextLayout& Layout, const FTextCaret& Caret, ETextMove Move, float Column, float PageHeight);
