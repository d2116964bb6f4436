// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Math/Color.h"

/** The colors of the editor, in linear light. Text on them keeps a contrast of 4.5 to 1, and what is Primary one of 3.5 to 1. */
namespace EditorTheme
{
/** From the digits that a picture shows, 0xRRGGBB. */
FLinearColor FromScreen(uint32 Digits);

inline constexpr uint32 Black = 0x0B0C0E;
inline constexpr uint32 AccentBlack = 0x16181C;
inline constexpr uint32 Header = 0x1D2025;
inline constexpr uint32 Dropdown = 0x272A31;
inline constexpr uint32 AccentGray = 0x2D3139;

inline constexpr uint32 White = 0xFFFFFF;
inline constexpr uint32 Foreground = 0xC8CCD4;
inline constexpr uint32 ForegroundHover = 0xFFFFFF;
inline constexpr uint32 ForegroundInverted = 0x101215;

inline constexpr uint32 Primary = 0x3B82F6;
inline constexpr uint32 PrimaryHover = 0x3371E3;
inline constexpr uint32 PrimaryPress = 0x2F6BDB;
inline constexpr uint32 Secondary = 0x363B45;
inline constexpr uint32 Hover = 0x454B57;
inline constexpr uint32 Hover2 = 0x4F5564;
inline constexpr uint32 ThumbHover = 0x767D8C;

/** Behind selected text. */
inline constexpr uint32 Selection = 0x264F8C;
inline constexpr uint32 SelectionHover = 0x2A5699;

inline constexpr uint32 AccentBlue = 0x2459C4;
inline constexpr uint32 AccentRed = 0xB8262B;
inline constexpr uint32 AccentGreen = 0x1B7A3B;
} // namespace EditorTheme
