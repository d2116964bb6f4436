// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "VorelChatUI.h"

#include "AuthenticationService.h"
#include "ChatService.h"
#include "Controller/VorelChatUIController.h"
#include "Decorators/CodeBlockStyle.h"
#include "Modules/ModuleManager.h"
#include "Styling/StyleSheets/VorelAIStyle.h"
#include "Styling/StyleSheets/VorelMarkdownStyle.h"
#include "UserDataService.h"
#include "VorelClient.h"
#include "VorelUpdateService.h"

FVorelChatUI& FVorelChatUI::Get()
{
	return FModuleManager::Get().LoadModuleChecked<FVorelChatUI>("VorelChatUI");
}

void FVorelChatUI::StartupModule()
{
	const FVorelClient& Client = FVorelClient::Get();
	const TObjectPtr<UChatService> ChatService = Client.GetChatService();
	const TObjectPtr<UAuthenticationService> AuthService = Client.GetAuthService();
	const TObjectPtr<UUserDataService> UserDataService = Client.GetUserDataService();
	const TObjectPtr<UVorelUpdateService> UpdateService = Client.GetUpdateService();

	// The styles are complete before the controller exists, which can cause widgets to be built at any later moment.
	FVorelAIStyle::Initialize();
	FVorelMarkdownStyle::Initialize();
	FCodeBlockStyle::Initialize();

	ChatUIController = MakeShared<FVorelChatUIController>(ChatService, AuthService, UserDataService, UpdateService);
	ChatUIController->InitializeUI();
}

void FVorelChatUI::ShutdownModule()
{
	if (ChatUIController)
	{
		ChatUIController->ShutdownUI();
	}
	ChatUIController.Reset();

	FVorelAIStyle::Shutdown();
	FVorelMarkdownStyle::Shutdown();
	FCodeBlockStyle::Shutdown();
}

IMPLEMENT_MODULE(FVorelChatUI, VorelChatUI);
