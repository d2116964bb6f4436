// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Fonts/TextShaper.h"

#include <QGlyphRun>

/** Glyphs of one font, from the left edge and the baseline of their text, in device pixels. */
struct FGlyphRun
{
	QGlyphRun Glyphs;
	/** Drawn in its own colours, and never tinted. */
	bool bColored = false;
};

/** A shaped unit of text with what the painter needs to draw it. */
class FQtShapedText : public FShapedText
{
public:
	/** From the top of the text's line to its baseline, in device pixels. */
	float Ascent = 0.0f;
	TArray<FGlyphRun> Runs;
};
