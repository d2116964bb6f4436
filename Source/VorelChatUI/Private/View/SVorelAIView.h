// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SChatPanel;
class SLoginPanel;
class UAuthenticationService;
class UChatService;
class UUserDataService;
class UVorelUpdateService;

// The content of the tab: the chat for a signed-in user, the login for a signed-out one. Both are built at once and never again, so that
// each keeps its state while the other is shown.
class SVorelAIView : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SVorelAIView) {}
	SLATE_ARGUMENT(TObjectPtr<UAuthenticationService>, AuthService)
	SLATE_ARGUMENT(TObjectPtr<UChatService>, ChatService)
	SLATE_ARGUMENT(TObjectPtr<UUserDataService>, UserDataService)
	SLATE_ARGUMENT(TObjectPtr<UVorelUpdateService>, UpdateService)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	void UpdateViewState();

private:
	TObjectPtr<UAuthenticationService> AuthService;
	TObjectPtr<UChatService> ChatService;
	TObjectPtr<UUserDataService> UserDataService;
	TObjectPtr<UVorelUpdateService> UpdateService;
	TSharedPtr<SLoginPanel> LoginPanel;
	TSharedPtr<SChatPanel> ChatPanel;
};
