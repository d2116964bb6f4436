// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Framework/ConstructableUI.h"
#include "Input/Reply.h"
#include "Types/SlateEnums.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SButton;
class SHorizontalBox;
class SMultiLineEditableText;
class SNotification;
class UChatService;
class UUserDataService;
struct FChatPanelActions;
struct FVorelUserData;

// The box in which the user types, with its send button. It decides whether a message may leave and hands it to the panel. When a request
// fails, the last text that was committed by Enter comes back.
class VORELCHATUI_API SInputArea : public SCompoundWidget, public ConstructableUI
{
public:
	SLATE_BEGIN_ARGS(SInputArea) {}
	SLATE_ARGUMENT(TSharedPtr<FChatPanelActions>, PanelActions)
	SLATE_ARGUMENT(TObjectPtr<UChatService>, ChatService)
	SLATE_ARGUMENT(TObjectPtr<UUserDataService>, UserDataService)
	SLATE_ARGUMENT(TSharedPtr<SNotification>, Notification)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	// While the input is off, a notice stands in its place.
	void SetInputEnabled(bool bEnabled);
	bool IsInputEnabled() const;

	void Initialize() override;
	TSharedRef<SWidget> ConstructInterface() override;
	void RegisterEvents() override;
	void UnregisterEvents() override;

private:
	TSharedRef<SWidget> ConstructInputBox();
	TSharedRef<SWidget> ConstructSendButton();

	FReply OnSendClicked();
	void OnTextCommitted(const FText& Text, ETextCommit::Type CommitType);
	void HandleRequestFailed(const FString& Error);
	void HandleUserDataChanged(const FVorelUserData& Data, bool bSuccess);

	// Agent modes cost credits: in one, a user who is known to have none cannot send.
	void HandleInputAccess(const FString& ChatModeName);
	void OnBillingClicked();

	FArguments Args;
	TSharedPtr<FChatPanelActions> PanelActions;
	TObjectPtr<UChatService> ChatService;
	TObjectPtr<UUserDataService> UserDataService;
	TSharedPtr<SNotification> Notification;
	TSharedPtr<SMultiLineEditableText> InputTextBox;

	// Kept after success and after a refused send too; emptied only when it was given back.
	FString LastCommittedMessage;
	TSharedPtr<SButton> SendButton;
	FDelegateHandle RequestFailedHandle;
	FDelegateHandle ChatModeChangedHandle;
	FDelegateHandle UserDataChangedHandle;
	bool bInputEnabled = true;
	TSharedPtr<SHorizontalBox> PaidNoticeBox;
};
