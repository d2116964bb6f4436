// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Account/OwnerKey.h"
#include "Assistant/AssistantEndpoint.h"
#include "VorelClient.h"
#include <memory>

class FLocalService;
class UHttpChatService;
class UVersionFeedUpdateService;
class UVorelUserDataService;

// Owns the four services, and the embedded local service where no other one was chosen.
class FVorelClientServices final : public FVorelClient
{
public:
	FVorelClientServices();
	~FVorelClientServices() override;

	TObjectPtr<UChatService> GetChatService() const override;
	TObjectPtr<UAuthenticationService> GetAuthService() const override { return AuthService; }
	TObjectPtr<UUserDataService> GetUserDataService() const override;
	TObjectPtr<UVorelUpdateService> GetUpdateService() const override;

private:
	FString StartLocalService();
	FAssistantEndpoint ChooseAssistant();
	FAssistantEndpoint MakeOwnAssistant();

	// Declared first, so that it is gone last.
	std::unique_ptr<FLocalService> LocalService;
	FOwnerKey OwnerKey;
	// Empty where there is none.
	FString ServiceUrl;

	// In the root set.
	TObjectPtr<UHttpChatService> ChatService;
	TObjectPtr<UAuthenticationService> AuthService;
	TObjectPtr<UVorelUserDataService> UserDataService;
	TObjectPtr<UVersionFeedUpdateService> UpdateService;
};
