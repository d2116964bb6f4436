// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <string>

// Writes those tables as md4c 0.4.8 wants them that it would not take for any: with fewer than three characters in a cell of the delimiter
// row, or with lines of a paragraph directly above the head.
void RepairTables(std::string& Source);
