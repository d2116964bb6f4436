// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

DECLARE_MULTICAST_DELEGATE_OneParam(FOnLatestVersionReceived, const FString& /* Version */);

// Looks for a newer version of the plug-in. The delegate fires on the game thread.
class UVorelUpdateService : public UObject
{
public:
	// A newer version exists; not fired when the installed one is current.
	FOnLatestVersionReceived OnLatestVersionReceived;

	// Starts a check.
	virtual void CheckForUpdates() = 0;
};
