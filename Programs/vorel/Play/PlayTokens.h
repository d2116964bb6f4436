// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

struct FPlayToken
{
	FString Text;
	bool bQuoted = false;
};

// Cuts a line of a play file into words and quoted texts; a comment is left out. False, with what is wrong, for a line that can't be read.
bool ReadPlayTokens(FStringView Line, TArray<FPlayToken>& OutTokens, FString& OutError);
