// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Styling/SlateTypes.h"

// The looks of highlighted code, as the style set FCodeBlockStyle has them when this is made.
struct FCodeBlockTextStyle
{
	FCodeBlockTextStyle();

	FTextBlockStyle NormalTextStyle;
	FTextBlockStyle OperatorTextStyle;
	FTextBlockStyle KeywordTextStyle;
	FTextBlockStyle StringTextStyle;
	// No run takes it: a number is literal text like any other.
	FTextBlockStyle NumberTextStyle;
	FTextBlockStyle CommentTextStyle;
	FTextBlockStyle PreProcessorKeywordTextStyle;
};
