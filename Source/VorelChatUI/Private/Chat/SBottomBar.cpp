// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/SBottomBar.h"

#include "AuthenticationService.h"
#include "Chat/ChatPanelActions.h"
#include "Chat/SNotification.h"
#include "ChatService.h"
#include "LogVorel.h"
#include "Styling/StyleSheets/VorelAIStyle.h"
#include "UserDataService.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Input/SHyperlink.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "FVorelChatUI"

void SBottomBar::Construct(const FArguments& InArgs)
{
	AuthService = InArgs._AuthService;
	PanelActions = InArgs._PanelActions;
	Notification = InArgs._Notification;
	UserName = InArgs._UserName;
	Credits = InArgs._Credits;
	SelectedChatMode.Reset();
	for (const FString& ModeName : InArgs._ChatModes)
	{
		const TSharedPtr<FString> Option = MakeShared<FString>(ModeName);
		ChatModeOptions.Add(Option);
		if (ModeName.Equals(InArgs._CurrentChatMode, ESearchCase::IgnoreCase))
		{
			SelectedChatMode = Option;
		}
	}
	DisplayedChatModes = ChatModeOptions;
	ChildSlot[ConstructInterface()];
}

// clang-format off
TSharedRef<SWidget> SBottomBar::ConstructInterface()
{
	return SNew(SBox)
		.Padding(FMargin(1.0f, 8.0f, 0.0f, 10.0f))
		[
			SNew(SHorizontalBox)
			+ SHorizontalBox::Slot()
			.VAlign(VAlign_Center)
			.HAlign(HAlign_Left)
			.AutoWidth()
			.MaxWidth(140.0f)
			[
				ConstructChatModeComboBox()
			]
			+ SHorizontalBox::Slot()
			.VAlign(VAlign_Center)
			.HAlign(HAlign_Left)
			.AutoWidth()
			.Padding(12.0f, 0.0f, 0.0f, 0.0f)
			[
				ConstructCreditsInfo()
			]
			+ SHorizontalBox::Slot()
			.VAlign(VAlign_Center)
			.FillWidth(1.0f)
			.Padding(12.0f, 0.0f, 0.0f, 0.0f)
			[
				ConstructUserInfo()
			]
			+ SHorizontalBox::Slot()
			.VAlign(VAlign_Center)
			.HAlign(HAlign_Right)
			.AutoWidth()
			.Padding(0.0f, 0.0f, 2.0f, 0.0f)
			[
				ConstructLogoutButton()
			]
		];
}

TSharedRef<SWidget> SBottomBar::ConstructChatModeComboBox()
{
	return SAssignNew(ChatModeComboBox, SComboBox<TSharedPtr<FString>>)
		.OptionsSource(&DisplayedChatModes)
		.OnGenerateWidget(this, &SBottomBar::GenerateChatModeWidget)
		.OnSelectionChanged(this, &SBottomBar::OnChatModeChanged)
		.ComboBoxStyle(&FVorelAIStyle::Get().GetWidgetStyle<FComboBoxStyle>("VorelAI.ComboBox"))
		.ButtonStyle(&FVorelAIStyle::Get().GetWidgetStyle<FButtonStyle>("VorelAI.Button.Transparent"))
		.ContentPadding(FMargin(6.0f, 1.0f, 2.0f, 1.0f))
		.InitiallySelectedItem(SelectedChatMode)
		[
			SNew(STextBlock)
			.Text(this, &SBottomBar::GetSelectedChatModeText)
			.TextStyle(&FVorelAIStyle::Get().GetWidgetStyle<FTextBlockStyle>("VorelAI.Typography.Body"))
		];
}

TSharedRef<SWidget> SBottomBar::GenerateChatModeWidget(TSharedPtr<FString> Item)
{
	return SNew(STextBlock)
		.Text(FText::FromString(*Item))
		.TextStyle(&FVorelAIStyle::Get().GetWidgetStyle<FTextBlockStyle>("VorelAI.Typography.Body"));
}

TSharedRef<SWidget> SBottomBar::ConstructCreditsInfo()
{
	return SNew(SHorizontalBox)
		+ SHorizontalBox::Slot()
		.AutoWidth()
		.VAlign(VAlign_Center)
		.Padding(0.0f, 0.0f, 5.0f, 0.0f)
		[
			SNew(SImage)
			.Image(FVorelAIStyle::Get().GetBrush("VorelAI.Icon.FilledCircle"))
			.ColorAndOpacity(FVorelAIStyle::Get().GetSlateColor("VorelAI.Color.Secondary"))
			.DesiredSizeOverride(FVector2D(12.0f, 12.0f))
		]
		+ SHorizontalBox::Slot()
		.AutoWidth()
		.VAlign(VAlign_Center)
		[
			SNew(STextBlock)
			.Text(this, &SBottomBar::GetCreditsText)
			.TextStyle(&FVorelAIStyle::Get().GetWidgetStyle<FTextBlockStyle>("VorelAI.Typography.BodySmall"))
		];
}

TSharedRef<SWidget> SBottomBar::ConstructUserInfo()
{
	return SNew(STextBlock)
		.Text(this, &SBottomBar::GetUserInfoText)
		.TextStyle(&FVorelAIStyle::Get().GetWidgetStyle<FTextBlockStyle>("VorelAI.Typography.BodySmall"));
}

TSharedRef<SWidget> SBottomBar::ConstructLogoutButton()
{
	return SNew(SHyperlink)
		.Style(&FVorelAIStyle::Get().GetWidgetStyle<FHyperlinkStyle>("VorelAI.Hyperlink.Secondary.Small"))
		.Text(LOCTEXT("Logout", "Logout"))
		.OnNavigate(this, &SBottomBar::OnLogoutClicked);
}
// clang-format on

FText SBottomBar::GetSelectedChatModeText() const
{
	return SelectedChatMode ? FText::FromString(*SelectedChatMode) : FText::GetEmpty();
}

FText SBottomBar::GetCreditsText() const
{
	return FText::Format(LOCTEXT("CreditsTemplate", "Credits: {0}"), FText::AsNumber(Credits));
}

FText SBottomBar::GetUserInfoText() const
{
	return FText::Format(LOCTEXT("LicencedToTemplate", "Licenced to: {0}"), FText::FromString(UserName));
}

void SBottomBar::UpdateUserData(FString InUserName, int32 InCredits)
{
	UserName = MoveTemp(InUserName);
	Credits = InCredits;
}

void SBottomBar::OnChatModeChanged(TSharedPtr<FString> Item, ESelectInfo::Type SelectInfo)
{
	// What UpdateSelectedMode selects is no choice of the user.
	if (!Item || !PanelActions || SelectInfo == ESelectInfo::Direct)
	{
		return;
	}
	const FString ModeName = *Item;
	UE_LOG(LogVorel, Log, TEXT("Chat mode changed to: %s"), *ModeName);
	SelectedChatMode = Item;
	PanelActions->OnChatModeSelected.ExecuteIfBound(ModeName);
}

void SBottomBar::UpdateSelectedMode(const FString& ModeName, bool bIsEmptyConversation)
{
	if (bIsEmptyConversation)
	{
		DisplayedChatModes = ChatModeOptions;
		if (ChatModeComboBox)
		{
			ChatModeComboBox->SetEnabled(true);
		}
	}

	const TSharedPtr<FString>* Found = ChatModeOptions.FindByPredicate(
		[&ModeName](const TSharedPtr<FString>& Option) { return Option && Option->Equals(ModeName, ESearchCase::IgnoreCase); });
	if (Found == nullptr)
	{
		return;
	}
	SelectedChatMode = *Found;

	if (!bIsEmptyConversation)
	{
		const bool bLocked = UChatService::IsChatModeNameAnAgent(**Found);
		if (ChatModeComboBox)
		{
			ChatModeComboBox->SetEnabled(!bLocked);
		}
		if (!bLocked)
		{
			DisplayedChatModes = ChatModeOptions.FilterByPredicate([](const TSharedPtr<FString>& Option) { return Option.IsValid(); });
		}
	}
	if (ChatModeComboBox)
	{
		ChatModeComboBox->SetSelectedItem(SelectedChatMode, ESelectInfo::Direct);
		ChatModeComboBox->RefreshOptions();
	}
}

void SBottomBar::OnLogoutClicked()
{
	if (IsValid(AuthService))
	{
		AuthService->Logout();
	}
	if (PanelActions)
	{
		PanelActions->OnLogoutClicked.ExecuteIfBound();
	}
}

#undef LOCTEXT_NAMESPACE
