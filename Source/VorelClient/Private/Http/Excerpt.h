// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// One line of at most 200 characters, without control characters, of what somebody else wrote.
FString MakeExcerpt(const FString& ForeignText);
