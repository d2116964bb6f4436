// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Text/TextLayout.h"

namespace TextLines
{
/** Finds the line that begins at `Begin`: its text ends at LF or CR LF. Returns where the next one begins, or INDEX_NONE after the last. */
int32 FindLine(FStringView Text, int32 Begin, FTextRange& OutLine);

/** Lines without runs of their own; at least one. */
TArray<FTextLayout::FNewLineData> MakePlainLines(FStringView Text);
} // namespace TextLines
