// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// Numbers as people write them in options and play files: plain decimals, nothing before or after. Unset for anything else.
namespace ReadNumber
{
TOptional<double> Decimal(FStringView Text);
TOptional<int32> Integer(FStringView Text);
} // namespace ReadNumber
