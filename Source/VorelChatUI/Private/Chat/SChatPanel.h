// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Framework/ConstructableUI.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SBottomBar;
class SChatView;
class SInputArea;
class SNotification;
class STopBar;
class UAuthenticationService;
class UChatService;
class UMessage;
class USerializableChatHistory;
class UUserDataService;
class UVorelUpdateService;
struct FChatPanelActions;
struct FVorelUserData;

// Coordinates everything in the chat tab. Its children fire the delegates of PanelActions; the panel decides, calls the services and pushes
// fresh state into the children. It is the one place that refuses an action while the assistant is answering.
class VORELCHATUI_API SChatPanel : public SCompoundWidget, public ConstructableUI
{
public:
	// ChatService and UpdateService must exist when the panel is built.
	SLATE_BEGIN_ARGS(SChatPanel) {}
	SLATE_ARGUMENT(TObjectPtr<UChatService>, ChatService)
	SLATE_ARGUMENT(TObjectPtr<UAuthenticationService>, AuthService)
	SLATE_ARGUMENT(TObjectPtr<UUserDataService>, UserDataService)
	SLATE_ARGUMENT(TObjectPtr<UVorelUpdateService>, UpdateService)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	TSharedRef<SWidget> ConstructInterface() override;
	void RegisterEvents() override;
	void UnregisterEvents() override;

private:
	TSharedRef<SWidget> ConstructTopBar();
	TSharedRef<SWidget> ConstructChatArea();
	TSharedRef<SWidget> ConstructChatView();
	TSharedRef<SWidget> ConstructInputArea();
	TSharedRef<SWidget> ConstructBottomBar();

	void HandleAuthenticationStateChanged();
	void HandleChatDeleted(TObjectPtr<USerializableChatHistory> History);
	void HandleChatHistoryChanged();
	void HandleChatHistorySelected(TObjectPtr<USerializableChatHistory> History);

	// The user chose a mode. An agent mode never changes the open conversation: it opens a new one.
	void HandleChatModeChanged(const FString& ModeName);

	// The service's mode has changed. Reflects it only: calling the service's setters from here would loop.
	void HandleChatModeChangedInternal(const FString& ModeName);
	void HandleLatestVersionReceived(const FString& Version) const;
	void HandleLogoutClicked();
	void HandleMessageAdded(TObjectPtr<UMessage> Message);
	void HandleNewChatRequested();
	void HandleSendMessage(const FString& Text);
	void HandleUserDataChanged(const FVorelUserData& Data, bool bSuccess);

	void RefreshBottomBarWidget();
	void RefreshChatHistoryWidget();
	void RefreshChatViewWidget();

	// Tells the user to wait, with what for, if the assistant is answering.
	bool RefuseWhileBusy(const FString& Message) const;

	TObjectPtr<UChatService> ChatService;
	TObjectPtr<UAuthenticationService> AuthService;
	TObjectPtr<UUserDataService> UserDataService;
	TObjectPtr<UVorelUpdateService> UpdateService;
	TSharedPtr<STopBar> TopBar;
	TSharedPtr<SNotification> Notification;
	TSharedPtr<SChatView> ChatView;
	TSharedPtr<SInputArea> InputArea;
	TSharedPtr<SBottomBar> BottomBar;

	// Read once, when the panel is built.
	TArray<FString> ChatModes;
	TSharedPtr<FChatPanelActions> PanelActions;
};
