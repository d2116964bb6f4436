// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Account/OwnerKey.h"
#include "Assistant/AssistantEndpoint.h"
#include "VorelClient.h"
#include <memory>

class FLocalService;
class UHttpChatService;
class UOAuthAuthenticationService;
class UVersionFeedUpdateService;
class UVorelUserDataService;
struct FLoginOptions;

// Owns the four services, and the embedded local service where no other one was chosen.
class FVorelClientServices final : public FVorelClient
{
public:
	FVorelClientServices();
	~FVorelClientServices() override;

	TObjectPtr<UChatService> GetChatService() const override;
	TObjectPtr<UAuthenticationService> GetAuthService() const override;
	TObjectPtr<UUserDataService> GetUserDataService() const override;
	TObjectPtr<UVorelUpdateService> GetUpdateService() const override;

private:
	FString StartLocalService();
	FLoginOptions MakeLoginOptions() const;
	// For what only the service is asked.
	IAccessTokenSource& GetServiceTokens();
	FAssistantEndpoint ChooseAssistant(const FString& Key);
	FAssistantEndpoint MakeOwnAssistant();

	// Declared first, so that it is gone last.
	std::unique_ptr<FLocalService> LocalService;
	FOwnerKey OwnerKey;
	bool bAccountInMemory = false;
	// Empty where there is none.
	FString ServiceUrl;

	// In the root set.
	TObjectPtr<UHttpChatService> ChatService;
	TObjectPtr<UOAuthAuthenticationService> AuthService;
	TObjectPtr<UVorelUserDataService> UserDataService;
	TObjectPtr<UVersionFeedUpdateService> UpdateService;
};
