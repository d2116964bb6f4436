// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// In units.
struct FContentSize
{
	int32 Width = 1000;
	int32 Height = 800;

	bool operator==(const FContentSize&) const = default;
};

// Numbers as people write them in options and play files: plain decimals, nothing before or after. Unset for anything else.
namespace ReadNumber
{
TOptional<double> Decimal(FStringView Text);
TOptional<int32> Integer(FStringView Text);

// "1000x800", each side from 1 to 8192.
TOptional<FContentSize> Size(FStringView Text);
} // namespace ReadNumber
