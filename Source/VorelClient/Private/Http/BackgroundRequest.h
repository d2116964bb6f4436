// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Http/RequestLimits.h"

struct FHttpFailure;

// For requests that nobody waits for.
namespace BackgroundRequest
{
constexpr FRequestLimits Limits{10.0, 30.0, 30.0};

// For the log.
FString Describe(const FHttpFailure& Failure);
} // namespace BackgroundRequest
