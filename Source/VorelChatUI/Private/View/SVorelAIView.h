// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SChatPanel;
class UAuthenticationService;
class UChatService;
class UUserDataService;
class UVorelUpdateService;

// The content of the tab. Shows the chat panel while the user is signed in; the panel is built in any case and keeps its state meanwhile.
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
	TSharedPtr<SChatPanel> ChatPanel;
};
