// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Templates/SharedPointer.h"

struct FTextBlockStyle;

namespace TextStylePool
{
/** An immutable copy of the style: the one that other runs hold already, if any of the last few styles that were asked for is equal. */
TSharedRef<const FTextBlockStyle> Share(const FTextBlockStyle& Style);
} // namespace TextStylePool
