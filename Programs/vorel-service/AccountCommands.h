// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// Does what stands behind "accounts" on the command line. False, with one sentence for the user, where that can't be done.
bool RunAccountCommand(const TArray<FString>& Command, const FString& DataFile, FString& OutError);
