// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// The message as one line without blanks at its ends, each white space within it as one blank.
FString MakeConversationTitle(const FString& FirstMessage);

// What stands for a title that is empty, else the title.
FString GetShownTitle(const FString& Title);

// At most MaxLength characters as a reader counts them; what was cut ends with an ellipsis that counts too. Empty for a limit below 1.
FString ShortenTitle(const FString& Title, int32 MaxLength);

// The local time of today, else the day. Both in milliseconds since 1970.
FString FormatTimeOfUse(int64 Time, int64 Now);

// Milliseconds since 1970 in UTC.
int64 GetCurrentTime();
