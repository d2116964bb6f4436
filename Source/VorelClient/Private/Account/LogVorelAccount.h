// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// What a user should know of signing in, in whole sentences without secrets. A host shows these messages from Display on.
DECLARE_LOG_CATEGORY_EXTERN(LogVorelAccount, Log, All);
