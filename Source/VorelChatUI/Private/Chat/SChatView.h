// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Framework/ConstructableUI.h"
#include "Message.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SChatItem;
class SLoadingMessageItem;
class SNotification;
class SScrollBox;
class SVerticalBox;
class UAuthenticationService;
class UChatService;
struct FChatPanelActions;

// The scrolling list of messages. It holds no messages of its own: what stands on screen is rebuilt from the service's current
// conversation.
//
// During a request it is idle, thinking (a placeholder stands in the list) or streaming (CurrentChatItem takes the chunks). Only an added
// message ends the streaming item; it has been shown already and is not shown a second time. A failed request leaves the item set although
// the list was rebuilt without it, until the next message is added.
class VORELCHATUI_API SChatView : public SCompoundWidget, public ConstructableUI
{
public:
	SLATE_BEGIN_ARGS(SChatView) {}
	SLATE_ARGUMENT(TObjectPtr<UChatService>, ChatService)
	SLATE_ARGUMENT(TObjectPtr<UAuthenticationService>, AuthService)
	SLATE_ARGUMENT(TSharedPtr<FChatPanelActions>, PanelActions)
	SLATE_ARGUMENT(TSharedPtr<SNotification>, Notification)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	void LoadChatHistory();
	void AddMessageToView(TObjectPtr<UMessage> Message);
	void ClearMessages();

	void Initialize() override;
	TSharedRef<SWidget> ConstructInterface() override;
	void RegisterEvents() override;
	void UnregisterEvents() override;

private:
	TSharedRef<SChatItem> AddMessageToView(EChatRole Role, const FString& Text);
	void AddThinkingItem();
	void RemoveThinkingItem();
	void ScrollToBottom();

	void HandleChunkReceived(const FString& Chunk);
	void HandleMessageAdded(TObjectPtr<UMessage> Message);
	void HandleRequestCompleted();
	void HandleRequestFailed(const FString& Error);

	FArguments Args;
	TObjectPtr<UChatService> ChatService;
	TObjectPtr<UAuthenticationService> AuthService;
	TSharedPtr<SScrollBox> ChatScrollBox;

	// One slot per message, and the placeholder's slot.
	TSharedPtr<SVerticalBox> ChatBox;
	TSharedPtr<SChatItem> CurrentChatItem;
	TSharedPtr<SNotification> Notification;
	FDelegateHandle ChunkReceivedHandle;
	FDelegateHandle RequestFailedHandle;
	FDelegateHandle RequestCompletedHandle;
	FDelegateHandle MessageAddedHandle;
	TSharedPtr<FChatPanelActions> PanelActions;
	TSharedPtr<SLoadingMessageItem> ThinkingItem;
	bool bIsThinking = false;
};
