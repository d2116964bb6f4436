// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <cstddef>
#include <string_view>

// The lines of a table as they stand in the source, without what a quote or a list puts before them.

// How many columns a delimiter row ("| --- | :-: |") declares; 0 for any other line.
size_t CountDeclaredColumns(std::string_view Line);

// md4c 0.4.8 wants three characters at least in each cell of a delimiter row.
bool HasShortCell(std::string_view DelimiterRow);

// A pipe ends a cell unless a backslash stands before it, or it stands in code.
size_t CountCells(std::string_view Line);
