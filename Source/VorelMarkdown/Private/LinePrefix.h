// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <cstddef>
#include <string_view>

// What may stand before the content of a line. All return the position behind it.
size_t SkipBlanksAndQuotes(std::string_view Line, size_t Position);

// A bullet or a number, with one blank behind it or the line's end.
size_t SkipListMarker(std::string_view Line, size_t Position);

// All of these from the beginning of the line on.
size_t SkipLinePrefix(std::string_view Line);
