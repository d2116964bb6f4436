// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// The test program started anew as a second one on the same data folder. Each line of its stdin is an access token that was refused. It
// says "asked" when it has asked for another one and had time to act, and then the one that it got, or "none".
struct FRenewingProgram
{
	static constexpr const char* Switch = "--renew";

	static int Run(const FString& Issuer, const FString& DataFolder);
};
