// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// In units.
struct FContentSize
{
	int32 Width = 1000;
	int32 Height = 800;

	bool operator==(const FContentSize&) const = default;

	// "1000x800", each side from 1 to 8192. Unset for anything else.
	static TOptional<FContentSize> Read(FStringView Text);
};
