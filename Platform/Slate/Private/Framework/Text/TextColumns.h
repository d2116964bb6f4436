// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "TextLine.h"

/** Columns in text: cells between tabs, and the text of a list item beside its mark. What is wrapped goes on in its own column. */
namespace TextColumns
{
/** Marks the unit behind which the text of an indented line or of a list item begins. */
void MarkIndent(FTextLine& Line);

/**
 * Gives tabs the widths that put the cells of neighbouring lines under each other: a column is as wide as its widest cell, but for
 * columns so wide that little room of `Width`, in device pixels, were left for the last cells. Lines that changed are to be wrapped anew.
 */
void AlignTabs(const TArray<TSharedRef<FTextLine>>& Lines, float Width);
} // namespace TextColumns
