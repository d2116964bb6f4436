// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreTypes.h"
#include "Misc/EnumClassFlags.h"

enum EObjectFlags : uint32
{
	RF_NoFlags = 0,
	RF_Public = 1u << 0,
	// Kept by the collector although nobody refers to it.
	RF_Standalone = 1u << 1,
	RF_Transient = 1u << 6
};

ENUM_CLASS_FLAGS(EObjectFlags)

inline constexpr EObjectFlags GARBAGE_COLLECTION_KEEPFLAGS = RF_Standalone;
