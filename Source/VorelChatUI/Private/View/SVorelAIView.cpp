// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "View/SVorelAIView.h"

#include "AuthenticationService.h"
#include "Chat/SChatPanel.h"
#include "ChatService.h"
#include "LogVorel.h"
#include "UserDataService.h"
#include "VorelUpdateService.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SOverlay.h"

// clang-format off
void SVorelAIView::Construct(const FArguments& InArgs)
{
	AuthService = InArgs._AuthService;
	ChatService = InArgs._ChatService;
	UserDataService = InArgs._UserDataService;
	UpdateService = InArgs._UpdateService;

	ChildSlot
	[
		SNew(SOverlay)
		+ SOverlay::Slot()
		[
			SNullWidget::NullWidget
		]
		+ SOverlay::Slot()
		[
			SAssignNew(ChatPanel, SChatPanel)
			.ChatService(ChatService)
			.AuthService(AuthService)
			.UserDataService(UserDataService)
			.UpdateService(UpdateService)
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
		ChatPanel->SetVisibility(EVisibility::Visible);
	}
	else
	{
		ChatPanel->SetVisibility(EVisibility::Collapsed);
	}
}
