// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

struct FVorelUserData
{
	// Empty as long as nothing is known of the user.
	FString UserName;
	FString Email;
	int32 Credits = 0;
	TArray<FString> Entitlements;
};
