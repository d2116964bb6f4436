// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "InputCoreTypes.h"

// A key that calls a command; by default none.
struct FInputChord
{
	FKey Key;

	bool IsValidChord() const { return Key.IsValid(); }
};
