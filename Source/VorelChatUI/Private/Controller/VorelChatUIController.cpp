// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Controller/VorelChatUIController.h"

#include "AuthenticationService.h"
#include "ChatService.h"
#include "Controller/VorelChatCommands.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/Docking/TabManager.h"
#include "LogVorel.h"
#include "Styling/AppStyle.h"
#include "ToolMenus.h"
#include "UserDataService.h"
#include "View/SVorelAIView.h"
#include "VorelUpdateService.h"
#include "Widgets/Docking/SDockTab.h"

#define LOCTEXT_NAMESPACE "FVorelChatUI"

const FName FVorelChatUIController::VorelChatTabName("VorelChat");

FVorelChatUIController::FVorelChatUIController(TObjectPtr<UChatService> InChatService, TObjectPtr<UAuthenticationService> InAuthService,
	TObjectPtr<UUserDataService> InUserDataService, TObjectPtr<UVorelUpdateService> InUpdateService)
	: ChatService(InChatService)
	, AuthService(InAuthService)
	, UserDataService(InUserDataService)
	, UpdateService(InUpdateService)
	, CommandList(MakeShared<FUICommandList>())
{
}

FVorelChatUIController::~FVorelChatUIController()
{
	ShutdownUI();
}

void FVorelChatUIController::InitializeUI()
{
	MenuPaths = {"LevelEditor.MainMenu.Tools", "AssetEditor.BlueprintEditor.MainMenu.Tools"};
	FVorelChatCommands::Register();
	CommandList->MapAction(FVorelChatCommands::Get().OpenVorelAITab,
		FExecuteAction::CreateRaw(this, &FVorelChatUIController::OpenVorelAITab), FCanExecuteAction(), EUIActionRepeatMode::RepeatDisabled);
	UToolMenus::RegisterStartupCallback(FSimpleMulticastDelegate::FDelegate::CreateRaw(this, &FVorelChatUIController::RegisterUI));
}

void FVorelChatUIController::RegisterUI()
{
	UToolMenus* ToolMenus = UToolMenus::Get();
	if (IsValid(ToolMenus))
	{
		for (const FName& Path : MenuPaths)
		{
			UToolMenu* Menu = ToolMenus->ExtendMenu(Path);
			if (!IsValid(Menu))
			{
				continue;
			}
			// No owner is pushed, so the entries stay in the menus after ShutdownUI; their action goes with the command list.
			FToolMenuSection& Section = Menu->FindOrAddSection("Tools");
			Section.AddMenuEntryWithCommandList(FVorelChatCommands::Get().OpenVorelAITab, CommandList,
				LOCTEXT("VorelAITabName", "Vorel AI"), LOCTEXT("VorelAITabTooltip", "Opens Vorel.Chat assistant window"),
				FSlateIcon(FAppStyle::GetAppStyleSetName(), "ClassIcon.AIController"));
		}
	}
	else
	{
		UE_LOG(LogVorel, Warning, TEXT("Can't register UI because ToolMenus are not available"));
	}

	// Hidden from the editor's own window menu: the two Tools entries are the way to the tab.
	FGlobalTabmanager::Get()
		->RegisterNomadTabSpawner(VorelChatTabName, FOnSpawnTab::CreateRaw(this, &FVorelChatUIController::OnSpawnTab))
		.SetDisplayName(LOCTEXT("VorelChatTabTitle", "Vorel AI"))
		.SetMenuType(ETabSpawnerMenuType::Hidden);
}

void FVorelChatUIController::OpenVorelAITab()
{
	FGlobalTabmanager::Get()->TryInvokeTab(FTabId(VorelChatTabName));
}

// clang-format off
TSharedRef<SDockTab> FVorelChatUIController::OnSpawnTab(const FSpawnTabArgs& SpawnTabArgs)
{
	SAssignNew(RootView, SVorelAIView)
		.AuthService(AuthService)
		.ChatService(ChatService)
		.UserDataService(UserDataService)
		.UpdateService(UpdateService);

	return SNew(SDockTab)
		.TabRole(ETabRole::NomadTab)
		[
			RootView.ToSharedRef()
		];
}
// clang-format on

void FVorelChatUIController::ShutdownUI()
{
	UToolMenus::UnRegisterStartupCallback(this);
	UToolMenus::UnregisterOwner(this);
	FGlobalTabmanager::Get()->UnregisterNomadTabSpawner(VorelChatTabName);
}

#undef LOCTEXT_NAMESPACE
