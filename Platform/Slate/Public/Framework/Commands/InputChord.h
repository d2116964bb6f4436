// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "InputCoreTypes.h"

namespace EModifierKey
{
enum Type : uint8
{
	None = 0,
	Control = 1 << 0,
	Alt = 1 << 1,
	Shift = 1 << 2,
	Command = 1 << 3
};
}

// A key that calls a command; by default none.
struct FInputChord
{
	FKey Key;

	bool IsValidChord() const { return Key.IsValid(); }
};
