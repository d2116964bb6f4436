// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreTypes.h"

enum class ESlateDrawEffect : uint8
{
	None,
	/** Drawn fainter, as what cannot be used now. */
	DisabledEffect
};
