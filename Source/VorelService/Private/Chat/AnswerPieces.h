// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <string>
#include <vector>

// Cuts an answer as a language model's tokens would: a piece has at most six characters and holds either the end of a word or the blanks
// before a word with its beginning. Joined, the pieces are the text again; no piece breaks a UTF-8 sequence.
std::vector<std::string> CutIntoPieces(const std::string& Text);
