// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/SInputArea.h"

#include "Chat/ChatPanelActions.h"
#include "Chat/SNotification.h"
#include "ChatService.h"
#include "HAL/PlatformProcess.h"
#include "LogVorel.h"
#include "Styling/StyleSheets/VorelAIStyle.h"
#include "UserDataService.h"
#include "VorelSettings.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SHyperlink.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/SMultiLineEditableText.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "FVorelChatUI"

void SInputArea::Construct(const FArguments& InArgs)
{
	Args = InArgs;
	ChildSlot[ConstructInterface()];
	Initialize();
	RegisterEvents();
}

void SInputArea::Initialize()
{
	PanelActions = Args._PanelActions;
	ChatService = Args._ChatService;
	UserDataService = Args._UserDataService;
	Notification = Args._Notification;
	bInputEnabled = true;
	ChatService->GetCurrentChatModeName();
}

// clang-format off
TSharedRef<SWidget> SInputArea::ConstructInterface()
{
	return SNew(SOverlay)
		+ SOverlay::Slot()
		[
			SNew(SImage)
			.Image(FVorelAIStyle::Get().GetBrush("VorelAI.Background.Medium.Rounded.Small"))
		]
		+ SOverlay::Slot()
		.Padding(10.0f, 10.0f, 10.0f, 10.0f)
		[
			SNew(SBox)
			.MinDesiredHeight(40.0f)
			.MaxDesiredHeight(120.0f)
			[
				SNew(SHorizontalBox)
				+ SHorizontalBox::Slot()
				.FillWidth(1.0f)
				.VAlign(VAlign_Center)
				[
					ConstructInputBox()
				]
				+ SHorizontalBox::Slot()
				.AutoWidth()
				.VAlign(VAlign_Center)
				.Padding(5.0f, 0.0f, 0.0f, 0.0f)
				[
					ConstructSendButton()
				]
			]
		];
}

TSharedRef<SWidget> SInputArea::ConstructInputBox()
{
	return SNew(SOverlay)
		+ SOverlay::Slot()
		[
			SAssignNew(InputTextBox, SMultiLineEditableText)
			.TextStyle(&FVorelAIStyle::Get().GetWidgetStyle<FTextBlockStyle>("VorelAI.Typography.Body"))
			.OnTextCommitted(this, &SInputArea::OnTextCommitted)
			.AutoWrapText(true)
			.ModiferKeyForNewLine(EModifierKey::Shift)
			.IsEnabled(bInputEnabled)
			.HintText(LOCTEXT("InputAreaHintText", "Type your message here..."))
		]
		+ SOverlay::Slot()
		[
			SAssignNew(PaidNoticeBox, SHorizontalBox)
			.Visibility(EVisibility::Collapsed)
			+ SHorizontalBox::Slot()
			.FillWidth(1.0f)
			.VAlign(VAlign_Center)
			[
				SNew(STextBlock)
				.TextStyle(&FVorelAIStyle::Get().GetWidgetStyle<FTextBlockStyle>("VorelAI.Typography.Body"))
				.Text(LOCTEXT("InputAreaPaidNotice", "You have no credits left for this Agent mode."))
				.AutoWrapText(true)
			]
			+ SHorizontalBox::Slot()
			.AutoWidth()
			.VAlign(VAlign_Center)
			.Padding(5.0f, 0.0f, 0.0f, 0.0f)
			[
				SNew(SHyperlink)
				.Style(&FVorelAIStyle::Get().GetWidgetStyle<FHyperlinkStyle>("VorelAI.Hyperlink"))
				.Text(LOCTEXT("InputAreaPaidNoticeLink", "Get more credits"))
				.OnNavigate(this, &SInputArea::OnBillingClicked)
			]
		];
}

TSharedRef<SWidget> SInputArea::ConstructSendButton()
{
	return SAssignNew(SendButton, SButton)
		.ButtonStyle(&FVorelAIStyle::Get().GetWidgetStyle<FButtonStyle>("VorelAI.Button.Transparent"))
		.OnClicked(this, &SInputArea::OnSendClicked)
		.ContentPadding(FMargin(5.0f, 5.0f, 5.0f, 5.0f))
		[
			SNew(SImage)
			.Image(FVorelAIStyle::Get().GetBrush("VorelAI.Icon.Send"))
			.ColorAndOpacity(FVorelAIStyle::Get().GetSlateColor("VorelAI.Color.White"))
		];
}
// clang-format on

void SInputArea::RegisterEvents()
{
	if (!IsValid(ChatService))
	{
		return;
	}
	RequestFailedHandle = ChatService->OnRequestFailed.AddSP(this, &SInputArea::HandleRequestFailed);
	ChatModeChangedHandle = ChatService->OnChatModeChanged.AddSP(this, &SInputArea::HandleInputAccess);
	UserDataChangedHandle = UserDataService->OnUserDataChanged.AddSP(this, &SInputArea::HandleUserDataChanged);
}

void SInputArea::UnregisterEvents()
{
	if (!IsValid(ChatService))
	{
		return;
	}
	if (RequestFailedHandle.IsValid())
	{
		ChatService->OnRequestFailed.Remove(RequestFailedHandle);
	}
	if (ChatModeChangedHandle.IsValid())
	{
		ChatService->OnChatModeChanged.Remove(ChatModeChangedHandle);
	}
	if (UserDataChangedHandle.IsValid())
	{
		UserDataService->OnUserDataChanged.Remove(UserDataChangedHandle);
	}
}

void SInputArea::SetInputEnabled(bool bEnabled)
{
	bInputEnabled = bEnabled;
	const EVisibility WhenOn = bEnabled ? EVisibility::Visible : EVisibility::Collapsed;
	const EVisibility WhenOff = bEnabled ? EVisibility::Collapsed : EVisibility::Visible;
	if (InputTextBox)
	{
		InputTextBox->SetEnabled(bEnabled);
		InputTextBox->SetVisibility(WhenOn);
	}
	if (PaidNoticeBox)
	{
		PaidNoticeBox->SetVisibility(WhenOff);
	}
	if (SendButton)
	{
		SendButton->SetVisibility(WhenOn);
	}
}

bool SInputArea::IsInputEnabled() const
{
	return bInputEnabled;
}

FReply SInputArea::OnSendClicked()
{
	if (!bInputEnabled)
	{
		UE_LOG(LogVorel, Warning, TEXT("Can't send message because input is disabled"));
		return FReply::Handled();
	}
	if (!PanelActions)
	{
		UE_LOG(LogVorel, Warning, TEXT("Can't send message, unexpected invalid action"));
		return FReply::Handled();
	}
	if (!InputTextBox)
	{
		UE_LOG(LogVorel, Warning, TEXT("Can't send message because InputTextBox is not valid"));
		return FReply::Handled();
	}
	if (IsValid(ChatService) && ChatService->bIsProcessingRequest)
	{
		UE_LOG(LogVorel, Warning, TEXT("Already receiving AI response. Please wait before sending a new message."));
		if (Notification)
		{
			Notification->PushInfo(TEXT("Please wait"), TEXT("AI is still responding. Let it finish before sending a new message."));
		}
		return FReply::Handled();
	}

	const FText Text = InputTextBox->GetText();
	if (Text.IsEmpty())
	{
		return FReply::Handled();
	}
	PanelActions->OnSendMessage.ExecuteIfBound(Text.ToString());
	InputTextBox->SetText(FText::GetEmpty());
	return FReply::Handled();
}

void SInputArea::OnTextCommitted(const FText& Text, ETextCommit::Type CommitType)
{
	if (CommitType != ETextCommit::OnEnter)
	{
		return;
	}
	LastCommittedMessage = Text.ToString();
	OnSendClicked();
}

void SInputArea::HandleRequestFailed(const FString& Error)
{
	if (!InputTextBox || LastCommittedMessage.IsEmpty())
	{
		return;
	}
	InputTextBox->SetText(FText::FromString(LastCommittedMessage));
	LastCommittedMessage.Empty();
}

void SInputArea::HandleUserDataChanged(const FVorelUserData& Data, bool bSuccess)
{
	HandleInputAccess(ChatService->GetCurrentChatModeName());
}

void SInputArea::HandleInputAccess(const FString& ChatModeName)
{
	const bool bUserIsKnown = IsValid(UserDataService) && !UserDataService->UserData.UserName.IsEmpty();
	const bool bIsOutOfCredits = bUserIsKnown && UserDataService->UserData.Credits <= 0;
	SetInputEnabled(!(bIsOutOfCredits && UChatService::IsChatModeNameAnAgent(ChatModeName)));
}

void SInputArea::OnBillingClicked()
{
	FWindowsPlatformProcess::LaunchURL(*(UVorelSettings::Get()->GetAppUrl() + TEXT("/billing")), nullptr, nullptr);
}

#undef LOCTEXT_NAMESPACE
