// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Text/TextRange.h"

/** Where text may be broken, stepped through and reordered. All offsets count UTF-16 units. Game thread only: the iterators are shared. */
namespace TextBoundaries
{
/** A maximal stretch of one embedding level; odd levels run from right to left. */
struct FLevelRun
{
	int32 End = 0;
	uint8 Level = 0;
};

/** The ends of the stretches between which a line may be wrapped, ascending; the last is the text's length. Empty for empty text. */
void FindLineBreaks(FStringView Text, TArray<int32>& OutBreaks);

/** The level runs in the order of the text. Returns the paragraph's level, which its first strong character decides. */
uint8 FindLevels(FStringView Text, TArray<FLevelRun>& OutRuns);

/** The places of `Levels`, one for each piece of a line in the order of the text, from left to right. */
void ReorderVisually(const TArray<uint8>& Levels, TArray<int32>& OutOrder);

/** The next boundary after `Offset`, at most the text's length. */
int32 NextGrapheme(FStringView Text, int32 Offset);
/** The boundary before `Offset`, at least 0. */
int32 PreviousGrapheme(FStringView Text, int32 Offset);

/** Word steps as of Ctrl and an arrow: to the beginning of the next word, or of the one before. */
int32 NextWordBegin(FStringView Text, int32 Offset);
int32 PreviousWordBegin(FStringView Text, int32 Offset);

/** What a double click at `Offset` selects: the word, blanks or mark there. */
FTextRange FindWordAt(FStringView Text, int32 Offset);
} // namespace TextBoundaries
