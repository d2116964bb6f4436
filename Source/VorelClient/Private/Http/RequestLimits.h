// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// In seconds. The first byte may take long, because local servers load their model then.
struct FRequestLimits
{
	double Connect = 10.0;
	double FirstByte = 120.0;
	double BetweenBytes = 60.0;
};
