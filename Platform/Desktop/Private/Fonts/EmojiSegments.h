// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <QList>
#include <QStringView>

/** A stretch of UTF-16 units that is wholly emoji or wholly text. */
struct FPresentationSegment
{
	qsizetype Start;
	qsizetype Length;
	bool bEmoji;
};

/**
 * Cuts text where its presentation changes between text and emoji, so that a text font with monochrome pictures of its own cannot take
 * over what should be in colour. The segments cover the text in its order; empty text has none.
 */
QList<FPresentationSegment> SplitByPresentation(QStringView Text);
