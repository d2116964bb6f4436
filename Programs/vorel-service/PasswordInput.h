// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

#include <string>

// Asks for a new password on the terminal, twice and without showing it; else takes the first line of standard input. Unset, with one
// sentence for the user, where there is none.
TOptional<std::string> AskForPassword(FString& OutError);
