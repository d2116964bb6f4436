// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <string>

// Puts the guard mark before the content of those lines that md4c 0.4.8 must not take for the beginning of a list, of a definition or of a
// table, since it would need quadratic time for them or lose some of their text.
void GuardLineStarts(std::string& Source);
