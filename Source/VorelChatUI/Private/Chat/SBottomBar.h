// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Framework/ConstructableUI.h"
#include "Types/SlateEnums.h"
#include "UObject/ObjectPtr.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SNotification;
class UAuthenticationService;
class UUserDataService;
struct FChatPanelActions;
template <typename OptionType>
class SComboBox;

// The strip under the input area: the mode picker, the credits, who is signed in, and the way out. It shows what the panel pushes into it.
class VORELCHATUI_API SBottomBar : public SCompoundWidget, public ConstructableUI
{
public:
	SLATE_BEGIN_ARGS(SBottomBar) {}
	SLATE_ARGUMENT(TObjectPtr<UAuthenticationService>, AuthService)
	SLATE_ARGUMENT(TObjectPtr<UUserDataService>, UserDataService)
	SLATE_ARGUMENT(TArray<FString>, ChatModes)
	SLATE_ARGUMENT(FString, CurrentChatMode)
	SLATE_ARGUMENT(TSharedPtr<FChatPanelActions>, PanelActions)
	SLATE_ARGUMENT(TSharedPtr<SNotification>, Notification)
	SLATE_ARGUMENT(FString, UserName)
	SLATE_ARGUMENT(int32, Credits)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	TSharedRef<SWidget> ConstructInterface() override;

	// Shows the mode by code, which is not reported. A conversation that has begun in an agent mode locks the picker; an unknown mode
	// changes nothing but that an empty conversation unlocks it.
	void UpdateSelectedMode(const FString& ModeName, bool bIsEmptyConversation);
	void UpdateUserData(FString InUserName, int32 InCredits);

private:
	TSharedRef<SWidget> ConstructChatModeComboBox();
	TSharedRef<SWidget> ConstructCreditsInfo();
	TSharedRef<SWidget> ConstructUserInfo();
	TSharedRef<SWidget> ConstructLogoutButton();

	TSharedRef<SWidget> GenerateChatModeWidget(TSharedPtr<FString> Item);
	void OnChatModeChanged(TSharedPtr<FString> Item, ESelectInfo::Type SelectInfo);
	void OnLogoutClicked();

	FText GetSelectedChatModeText() const;
	FText GetCreditsText() const;
	FText GetUserInfoText() const;

	TObjectPtr<UAuthenticationService> AuthService;
	TSharedPtr<FChatPanelActions> PanelActions;
	TSharedPtr<SComboBox<TSharedPtr<FString>>> ChatModeComboBox;

	// Fixed for the life of the widget.
	TArray<TSharedPtr<FString>> ChatModeOptions;

	// Read by the picker.
	TArray<TSharedPtr<FString>> DisplayedChatModes;

	// Null if no mode matched.
	TSharedPtr<FString> SelectedChatMode;
	TSharedPtr<SNotification> Notification;
	FString UserName;
	int32 Credits = 0;
};
