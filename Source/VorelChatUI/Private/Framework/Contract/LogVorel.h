// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// Defined by VorelCore; every message of the plug-in goes here.
DECLARE_LOG_CATEGORY_EXTERN(LogVorel, Log, All);
