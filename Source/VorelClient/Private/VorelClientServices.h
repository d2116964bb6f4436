// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Assistant/AssistantEndpoint.h"
#include "VorelClient.h"
#include <memory>

class FLocalService;
class UHttpChatService;

// Owns the four services, and the embedded local service where no other assistant was chosen.
class FVorelClientServices final : public FVorelClient
{
public:
	FVorelClientServices();
	~FVorelClientServices() override;

	TObjectPtr<UChatService> GetChatService() const override;
	TObjectPtr<UAuthenticationService> GetAuthService() const override { return AuthService; }
	TObjectPtr<UUserDataService> GetUserDataService() const override { return UserDataService; }
	TObjectPtr<UVorelUpdateService> GetUpdateService() const override { return UpdateService; }

private:
	FAssistantEndpoint ChooseEndpoint();
	FAssistantEndpoint StartLocalService();

	// Declared first, so that it is gone last.
	std::unique_ptr<FLocalService> LocalService;

	// In the root set.
	TObjectPtr<UHttpChatService> ChatService;
	TObjectPtr<UAuthenticationService> AuthService;
	TObjectPtr<UUserDataService> UserDataService;
	TObjectPtr<UVorelUpdateService> UpdateService;
};
