// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// One line, without characters that control others, of what somebody else wrote.
FString MakeExcerpt(const FString& ForeignText, int32 MaxLength = 200);
