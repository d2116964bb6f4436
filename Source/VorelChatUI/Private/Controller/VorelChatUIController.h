// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

class FSpawnTabArgs;
class FUICommandList;
class SDockTab;
class SVorelAIView;
class UAuthenticationService;
class UChatService;
class UUserDataService;
class UVorelUpdateService;

// Connects the module to the editor's shell: one command, an entry for it in two Tools menus, and the tab that it opens.
class VORELCHATUI_API FVorelChatUIController
{
public:
	static const FName VorelChatTabName;

	FVorelChatUIController(TObjectPtr<UChatService> InChatService, TObjectPtr<UAuthenticationService> InAuthService,
		TObjectPtr<UUserDataService> InUserDataService, TObjectPtr<UVorelUpdateService> InUpdateService);
	~FVorelChatUIController();

	// Menu entries and tab come once the editor's menu system is up.
	void InitializeUI();

	// Safe to repeat. The menu entries and the commands stay behind.
	void ShutdownUI();

private:
	void RegisterUI();
	TSharedRef<SDockTab> OnSpawnTab(const FSpawnTabArgs& SpawnTabArgs);
	void OpenVorelAITab();

	TObjectPtr<UChatService> ChatService;
	TObjectPtr<UAuthenticationService> AuthService;
	TObjectPtr<UUserDataService> UserDataService;
	TObjectPtr<UVorelUpdateService> UpdateService;
	TArray<FName> MenuPaths;

	// The content of the last spawned tab. Outlives the closed tab until the next spawn.
	TSharedPtr<SVorelAIView> RootView;
	TSharedPtr<FUICommandList> CommandList;
};
