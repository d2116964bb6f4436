// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreTypes.h"

class UObject;

// A slot of the object table and the serial number that the slot had. The slot may be taken again; then its serial number differs and the
// handle resolves to null.
struct FObjectHandle
{
	int32 Index = INDEX_NONE;
	int32 SerialNumber = 0;

	// Null stays null. Takes only what NewObject made.
	static FObjectHandle Of(const UObject* Object);

	// Null once the object has been collected.
	UObject* Resolve() const;

	friend bool operator==(const FObjectHandle&, const FObjectHandle&) = default;
};
