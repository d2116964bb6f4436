// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

struct FServiceCommandLine;

// Serves until SIGINT or SIGTERM. False, with one sentence for the user, where it can't start.
bool RunService(const FServiceCommandLine& Line, const FString& DataFile, FString& OutError);
