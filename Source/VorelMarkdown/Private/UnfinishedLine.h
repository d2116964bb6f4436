// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <cstddef>
#include <string_view>

// How much of a message that may still grow can be shown: all of it, or all but a last line of which too little has arrived to tell what
// it is. Such are the beginning of a code fence, which would show as backticks; the first two characters of a heading's underline, which
// may as well be a list item and would make the paragraph above it jump; a delimiter row with fewer columns than the head above it; and
// the box of a task, of which the item's bullet is shown. A line of code is always shown.
size_t GetSettledSize(std::string_view Source);
