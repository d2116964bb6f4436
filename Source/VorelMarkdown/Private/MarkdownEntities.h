// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <string>
#include <string_view>

// The text that a character reference ("&amp;", "&#8212;", "&#x2014;") stands for; an unknown name stays as it is written. Never a control
// character or the end of a line.
std::string DecodeEntity(std::string_view Entity);
