// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

class IPlayStage;

// What is on screen, as the lines behind the sentence that says what went wrong.
FString ReportScreen(IPlayStage& Stage);
