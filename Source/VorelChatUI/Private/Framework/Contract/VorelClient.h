// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

class UAuthenticationService;
class UChatService;
class UUserDataService;
class UVorelUpdateService;

// The client module's front. It answers from the start of VorelChatUI on, and keeps its services alive at least until that module has
// shut down.
class FVorelClient
{
public:
	virtual ~FVorelClient() = default;

	static FVorelClient& Get();

	virtual TObjectPtr<UChatService> GetChatService() const = 0;
	virtual TObjectPtr<UAuthenticationService> GetAuthService() const = 0;
	virtual TObjectPtr<UUserDataService> GetUserDataService() const = 0;
	virtual TObjectPtr<UVorelUpdateService> GetUpdateService() const = 0;
};
