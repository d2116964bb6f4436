// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/SChatPanel.h"

#include "AuthenticationService.h"
#include "Chat/ChatPanelActions.h"
#include "Chat/SBottomBar.h"
#include "Chat/SChatView.h"
#include "Chat/SInputArea.h"
#include "Chat/SNotification.h"
#include "Chat/STopBar.h"
#include "ChatService.h"
#include "LogVorel.h"
#include "SerializableChatHistory.h"
#include "Styling/StyleSheets/VorelAIStyle.h"
#include "UserDataService.h"
#include "VorelUpdateService.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"

namespace
{

// Fixed, unlike the other pages: where to get a new version must not depend on the settings of the old one.
const TCHAR* const PluginDownloadUrl = TEXT(VOREL_WEB_URL "/plugin");

} // namespace

void SChatPanel::Construct(const FArguments& InArgs)
{
	ChatService = InArgs._ChatService;
	AuthService = InArgs._AuthService;
	UserDataService = InArgs._UserDataService;
	UpdateService = InArgs._UpdateService;
	ChatModes = ChatService->GetChatModeNames();
	PanelActions = MakeShared<FChatPanelActions>();
	ChildSlot[ConstructInterface()];
	RegisterEvents();
	RefreshChatHistoryWidget();
	if (ChatView)
	{
		ChatView->LoadChatHistory();
	}
	RefreshBottomBarWidget();
	UpdateService->CheckForUpdates();
}

// clang-format off
TSharedRef<SWidget> SChatPanel::ConstructInterface()
{
	// One after the other, since the slots of one expression may be built in any order: the chat area's children take the notification.
	const TSharedRef<SWidget> TopBarWidget = ConstructTopBar();
	SAssignNew(Notification, SNotification);
	const TSharedRef<SWidget> ChatArea = ConstructChatArea();
	return SNew(SBorder)
		.BorderImage(FVorelAIStyle::Get().GetBrush("VorelAI.Background.Dark"))
		.Padding(FMargin(0.0f, 0.0f, 0.0f, 0.0f))
		[
			SNew(SVerticalBox)
			+ SVerticalBox::Slot()
			.AutoHeight()
			[
				TopBarWidget
			]
			+ SVerticalBox::Slot()
			.AutoHeight()
			[
				Notification.ToSharedRef()
			]
			+ SVerticalBox::Slot()
			.FillHeight(1.0f)
			[
				ChatArea
			]
		];
}
// clang-format on

// clang-format off
TSharedRef<SWidget> SChatPanel::ConstructTopBar()
{
	return SAssignNew(TopBar, STopBar)
		.PanelActions(PanelActions);
}

TSharedRef<SWidget> SChatPanel::ConstructChatArea()
{
	const TSharedRef<SWidget> ChatViewWidget = ConstructChatView();
	const TSharedRef<SWidget> InputAreaWidget = ConstructInputArea();
	const TSharedRef<SWidget> BottomBarWidget = ConstructBottomBar();
	return SNew(SOverlay)
		+ SOverlay::Slot()
		.HAlign(HAlign_Center)
		.VAlign(VAlign_Fill)
		[
			SNew(SBox)
			.HAlign(HAlign_Fill)
			.VAlign(VAlign_Fill)
			.MinDesiredWidth(700.0f)
			.MaxDesiredWidth(700.0f)
			[
				SNew(SVerticalBox)
				+ SVerticalBox::Slot()
				.FillHeight(1.0f)
				.Padding(10.0f, 0.0f, 10.0f, 0.0f)
				[
					ChatViewWidget
				]
				+ SVerticalBox::Slot()
				.AutoHeight()
				.Padding(10.0f, 0.0f, 10.0f, 0.0f)
				[
					InputAreaWidget
				]
				+ SVerticalBox::Slot()
				.AutoHeight()
				.Padding(10.0f, 0.0f, 10.0f, 0.0f)
				[
					BottomBarWidget
				]
			]
		];
}

TSharedRef<SWidget> SChatPanel::ConstructChatView()
{
	return SAssignNew(ChatView, SChatView)
		.ChatService(ChatService)
		.AuthService(AuthService)
		.PanelActions(PanelActions)
		.Notification(Notification);
}

TSharedRef<SWidget> SChatPanel::ConstructInputArea()
{
	return SAssignNew(InputArea, SInputArea)
		.PanelActions(PanelActions)
		.ChatService(ChatService)
		.UserDataService(UserDataService)
		.Notification(Notification);
}

TSharedRef<SWidget> SChatPanel::ConstructBottomBar()
{
	// What the service holds at this moment; HandleUserDataChanged corrects it.
	const FVorelUserData UserData = UserDataService ? UserDataService->UserData : FVorelUserData();
	return SAssignNew(BottomBar, SBottomBar)
		.AuthService(AuthService)
		.UserDataService(UserDataService)
		.ChatModes(ChatModes)
		.CurrentChatMode(ChatService->GetCurrentChatModeName())
		.PanelActions(PanelActions)
		.Notification(Notification)
		.UserName(UserData.UserName)
		.Credits(UserData.Credits);
}
// clang-format on

void SChatPanel::RegisterEvents()
{
	if (PanelActions)
	{
		PanelActions->OnChatHistorySelected.BindSP(this, &SChatPanel::HandleChatHistorySelected);
		PanelActions->OnChatDeleted.BindSP(this, &SChatPanel::HandleChatDeleted);
		PanelActions->OnNewChatRequested.BindSP(this, &SChatPanel::HandleNewChatRequested);
		PanelActions->OnLogoutClicked.BindSP(this, &SChatPanel::HandleLogoutClicked);
		PanelActions->OnChatModeSelected.BindSP(this, &SChatPanel::HandleChatModeChanged);
		PanelActions->OnSendMessage.BindSP(this, &SChatPanel::HandleSendMessage);
	}
	else
	{
		UE_LOG(LogVorel, Error, TEXT("PanelActions is not valid in SChatPanel::RegisterEvents"));
	}

	if (IsValid(AuthService))
	{
		AuthService->OnAuthenticationStateChanged.AddSP(this, &SChatPanel::HandleAuthenticationStateChanged);
	}
	else
	{
		UE_LOG(LogVorel, Error, TEXT("AuthService is not valid in SChatPanel::RegisterEvents"));
	}

	if (IsValid(ChatService))
	{
		ChatService->OnChatHistoryChanged.AddSP(this, &SChatPanel::HandleChatHistoryChanged);
		ChatService->OnChatModeChanged.AddSP(this, &SChatPanel::HandleChatModeChangedInternal);
		ChatService->OnMessageAdded.AddSP(this, &SChatPanel::HandleMessageAdded);
	}
	else
	{
		UE_LOG(LogVorel, Error, TEXT("ChatService is not valid in SChatPanel::RegisterEvents"));
	}

	if (IsValid(UpdateService))
	{
		UpdateService->OnLatestVersionReceived.Add(
			FOnLatestVersionReceived::FDelegate::CreateSP(this, &SChatPanel::HandleLatestVersionReceived));
	}
	else
	{
		UE_LOG(LogVorel, Error, TEXT("UpdateService is not valid in SChatPanel::RegisterEvents"));
	}

	if (IsValid(UserDataService))
	{
		UserDataService->OnUserDataChanged.Add(FOnUserDataChanged::FDelegate::CreateSP(this, &SChatPanel::HandleUserDataChanged));
	}
}

void SChatPanel::UnregisterEvents()
{
	if (PanelActions)
	{
		PanelActions->OnChatHistorySelected.Unbind();
		PanelActions->OnChatDeleted.Unbind();
		PanelActions->OnNewChatRequested.Unbind();
		PanelActions->OnLogoutClicked.Unbind();
		PanelActions->OnChatModeSelected.Unbind();
		PanelActions->OnSendMessage.Unbind();
	}
	if (IsValid(AuthService))
	{
		AuthService->OnAuthenticationStateChanged.RemoveAll(this);
	}
	if (IsValid(ChatService))
	{
		ChatService->OnChatHistoryChanged.RemoveAll(this);
		ChatService->OnChatModeChanged.RemoveAll(this);
		ChatService->OnMessageAdded.RemoveAll(this);
	}
	if (IsValid(UpdateService))
	{
		UpdateService->OnLatestVersionReceived.RemoveAll(this);
	}
	if (IsValid(UserDataService))
	{
		UserDataService->OnUserDataChanged.RemoveAll(this);
	}
}

bool SChatPanel::RefuseWhileBusy(const FString& Message) const
{
	if (!IsValid(ChatService) || !ChatService->bIsProcessingRequest)
	{
		return false;
	}
	if (Notification)
	{
		Notification->PushInfo(TEXT("Please wait"), Message);
	}
	return true;
}

void SChatPanel::HandleNewChatRequested()
{
	if (RefuseWhileBusy(TEXT("AI is still responding. Let it finish before starting a new chat.")))
	{
		return;
	}
	UE_LOG(LogVorel, Log, TEXT("New chat requested"));
	if (!IsValid(ChatService))
	{
		return;
	}
	ChatService->CreateNewConversation(UChatService::DefaultAgentChatModeName);
	if (ChatView)
	{
		ChatView->LoadChatHistory();
	}
	RefreshChatHistoryWidget();
}

void SChatPanel::HandleChatHistorySelected(TObjectPtr<USerializableChatHistory> History)
{
	if (RefuseWhileBusy(TEXT("AI is still responding. Let it finish before switching conversation.")))
	{
		return;
	}
	if (IsValid(ChatService) && IsValid(History))
	{
		ChatService->LoadConversation(History->Id);
	}
}

void SChatPanel::HandleChatDeleted(TObjectPtr<USerializableChatHistory> History)
{
	// No busy guard: a conversation can be deleted while the assistant answers.
	if (IsValid(ChatService) && IsValid(History))
	{
		ChatService->DeleteChatHistory(History->Id);
	}
}

void SChatPanel::HandleChatModeChanged(const FString& ModeName)
{
	if (!IsValid(ChatService))
	{
		return;
	}
	if (!UChatService::IsChatModeNameAnAgent(ModeName))
	{
		ChatService->SetCurrentChatMode(ModeName);
		return;
	}
	if (RefuseWhileBusy(TEXT("AI is still responding. Let it finish before switching to Agent mode.")))
	{
		return;
	}
	ChatService->CreateNewConversation(ModeName);
	if (Notification)
	{
		Notification->PushInfo(TEXT("You're now in Agent mode"), TEXT("Your previous conversation is safe in chat history."));
	}
}

void SChatPanel::HandleChatModeChangedInternal(const FString& ModeName)
{
	UE_LOG(LogVorel, Log, TEXT("called HandleChatModeChangedInternal with mode: %s"), *ModeName);
	if (!BottomBar)
	{
		return;
	}
	const TObjectPtr<USerializableChatHistory> Conversation = ChatService->GetCurrentConversation();
	BottomBar->UpdateSelectedMode(ModeName, !IsValid(Conversation) || Conversation->Messages.IsEmpty());
}

void SChatPanel::HandleChatHistoryChanged()
{
	if (ChatView)
	{
		ChatView->LoadChatHistory();
	}
	RefreshChatHistoryWidget();
	RefreshBottomBarWidget();
}

void SChatPanel::HandleMessageAdded(TObjectPtr<UMessage> Message)
{
	RefreshBottomBarWidget();
}

void SChatPanel::HandleSendMessage(const FString& Text)
{
	if (IsValid(ChatService))
	{
		ChatService->SendMessage(Text);
	}
}

void SChatPanel::HandleLogoutClicked()
{
	if (IsValid(AuthService))
	{
		AuthService->Logout();
	}
}

void SChatPanel::HandleAuthenticationStateChanged()
{
	if (IsValid(AuthService) && AuthService->IsAuthenticated() && Notification)
	{
		Notification->PushSuccess(TEXT("Welcome back!"), TEXT("You've successfully logged in to Vorel."));
	}
}

void SChatPanel::HandleLatestVersionReceived(const FString& Version) const
{
	if (Notification)
	{
		Notification->PushInfo(
			TEXT("New version available!"), TEXT("A new version of Vorel is available."), PluginDownloadUrl, TEXT("Download"));
	}
}

void SChatPanel::HandleUserDataChanged(const FVorelUserData& Data, bool bSuccess)
{
	if (bSuccess)
	{
		BottomBar->UpdateUserData(Data.UserName, Data.Credits);
		return;
	}
	if (Notification)
	{
		Notification->PushError(TEXT("Unexpected Error!"), TEXT("Failed to retrieve user information"));
	}
	BottomBar->UpdateUserData(FString(), 0);
}

void SChatPanel::RefreshBottomBarWidget()
{
	if (!IsValid(ChatService) || !BottomBar)
	{
		return;
	}
	bool bIsEmptyConversation = true;
	const FString ModeName = ChatService->GetCurrentChatModeName();
	const TObjectPtr<USerializableChatHistory> Conversation = ChatService->GetCurrentConversation();
	if (IsValid(Conversation))
	{
		bIsEmptyConversation = Conversation->Messages.IsEmpty();
		if (!bIsEmptyConversation && ModeName.Contains(TEXT("AGENT"), ESearchCase::IgnoreCase))
		{
			Conversation->bIsAgentConversation = true;
		}
	}
	BottomBar->UpdateSelectedMode(ModeName, bIsEmptyConversation);
}

void SChatPanel::RefreshChatHistoryWidget()
{
	if (!IsValid(ChatService) || !PanelActions)
	{
		return;
	}
	const TArray<TObjectPtr<USerializableChatHistory>> Histories = ChatService->GetChatHistories();
	UE_LOG(LogVorel, Log, TEXT("Refreshing chat history widget with %d histories"), Histories.Num());
	PanelActions->OnChatHistoriesRefreshed.ExecuteIfBound(Histories);
}

void SChatPanel::RefreshChatViewWidget()
{
	if (ChatView)
	{
		ChatView->LoadChatHistory();
	}
}
