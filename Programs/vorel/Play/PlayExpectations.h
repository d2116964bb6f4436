// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Play/PlayStep.h"

// What a user watches for. Times are in seconds.
namespace PlayExpectations
{
FPlayStep WaitIdle(double Patience);
FPlayStep WaitText(const FString& Text, bool bShown, double Patience);
FPlayStep ExpectText(const FString& Text, bool bShown);
} // namespace PlayExpectations
