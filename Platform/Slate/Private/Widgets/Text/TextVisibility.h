// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Layout/Geometry.h"

/** The part of a text that can be seen, in device pixels from its top left corner. A little more: letters lean over their edges. */
FSlateRect FindVisibleArea(const FGeometry& TextGeometry, const FSlateRect& CullingRect);
