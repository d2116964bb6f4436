// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// What a user should know of the store, in whole sentences. A host shows these messages, which belong to no request, from Display on.
DECLARE_LOG_CATEGORY_EXTERN(LogVorelStore, Log, All);
