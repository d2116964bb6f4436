// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreTypes.h"

enum class EWidgetClipping : uint8
{
	/** Draws where its parent may draw. */
	Inherit,
	/** Neither it nor its children draw, or are hit, outside of its bounds. */
	ClipToBounds
};
