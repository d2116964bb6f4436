// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <cstddef>
#include <cstdint>

using int8 = std::int8_t;
using int16 = std::int16_t;
using int32 = std::int32_t;
using int64 = std::int64_t;
using uint8 = std::uint8_t;
using uint16 = std::uint16_t;
using uint32 = std::uint32_t;
using uint64 = std::uint64_t;
using SIZE_T = std::size_t;

using ANSICHAR = char;

// One UTF-16 unit.
using TCHAR = char16_t;

#define TEXT_PASTE(Literal) u##Literal
#define TEXT(Literal) TEXT_PASTE(Literal)

inline constexpr int32 INDEX_NONE = -1;
inline constexpr int32 MAX_int32 = INT32_MAX;
inline constexpr uint32 MAX_uint32 = UINT32_MAX;
