// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "View/SVorelAIView.h"

#include "Authentication/SLoginPanel.h"
#include "AuthenticationService.h"
#include "Chat/SChatPanel.h"
#include "ChatService.h"
#include "LogVorel.h"
#include "UserDataService.h"
#include "VorelUpdateService.h"
#include "Widgets/SOverlay.h"

// clang-format off
void SVorelAIView::Construct(const FArguments& InArgs)
{
	AuthService = InArgs._AuthService;
	ChatService = InArgs._ChatService;
	UserDataService = InArgs._UserDataService;
	UpdateService = InArgs._UpdateService;

	// The login panel first; the slots of one expression may be built in any order.
	SAssignNew(LoginPanel, SLoginPanel)
		.AuthService(AuthService);
	SAssignNew(ChatPanel, SChatPanel)
		.ChatService(ChatService)
		.AuthService(AuthService)
		.UserDataService(UserDataService)
		.UpdateService(UpdateService);
	ChildSlot
	[
		SNew(SOverlay)
		+ SOverlay::Slot()
		[
			LoginPanel.ToSharedRef()
		]
		+ SOverlay::Slot()
		[
			ChatPanel.ToSharedRef()
		]
	];

	if (IsValid(AuthService))
	{
		AuthService->OnAuthenticationStateChanged.AddSP(this, &SVorelAIView::UpdateViewState);
	}
	else
	{
		UE_LOG(LogVorel, Warning, TEXT("Can't bind to authentication state changes because AuthService is not valid"));
	}
	UpdateViewState();
}
// clang-format on

void SVorelAIView::UpdateViewState()
{
	if (IsValid(AuthService) && AuthService->IsAuthenticated())
	{
		UE_LOG(LogVorel, Log, TEXT("Updating view state: UserDataService is valid"));
		UserDataService->GetUserData();
		LoginPanel->SetVisibility(EVisibility::Collapsed);
		ChatPanel->SetVisibility(EVisibility::Visible);
	}
	else
	{
		LoginPanel->SetVisibility(EVisibility::Visible);
		ChatPanel->SetVisibility(EVisibility::Collapsed);
	}
}
