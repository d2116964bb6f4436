// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/SChatView.h"

#include "Chat/ChatPanelActions.h"
#include "Chat/SChatItem.h"
#include "Chat/SLoadingMessageItem.h"
#include "Chat/SNotification.h"
#include "ChatService.h"
#include "LogVorel.h"
#include "SerializableChatHistory.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SBoxPanel.h"

void SChatView::Construct(const FArguments& InArgs)
{
	Args = InArgs;
	Initialize();
	ChildSlot[ConstructInterface()];
	RegisterEvents();
	LoadChatHistory();
}

void SChatView::Initialize()
{
	ChatService = Args._ChatService;
	AuthService = Args._AuthService;
	PanelActions = Args._PanelActions;
	Notification = Args._Notification;
	bIsThinking = false;
}

// clang-format off
TSharedRef<SWidget> SChatView::ConstructInterface()
{
	return SNew(SBox)
		.MaxDesiredWidth(700.0f)
		.Padding(FMargin(10.0f, 0.0f, 10.0f, 0.0f))
		[
			SAssignNew(ChatScrollBox, SScrollBox)
			.AllowOverscroll(EAllowOverscroll::No)
			+ SScrollBox::Slot()
			[
				SAssignNew(ChatBox, SVerticalBox)
			]
		];
}
// clang-format on

void SChatView::RegisterEvents()
{
	if (!IsValid(ChatService))
	{
		return;
	}
	ChunkReceivedHandle = ChatService->OnChunkReceived.AddSP(this, &SChatView::HandleChunkReceived);
	RequestFailedHandle = ChatService->OnRequestFailed.AddSP(this, &SChatView::HandleRequestFailed);
	RequestCompletedHandle = ChatService->OnRequestCompleted.AddSP(this, &SChatView::HandleRequestCompleted);
	MessageAddedHandle = ChatService->OnMessageAdded.AddSP(this, &SChatView::HandleMessageAdded);
}

void SChatView::UnregisterEvents()
{
	if (!IsValid(ChatService))
	{
		return;
	}
	if (ChunkReceivedHandle.IsValid())
	{
		ChatService->OnChunkReceived.Remove(ChunkReceivedHandle);
	}
	if (RequestFailedHandle.IsValid())
	{
		ChatService->OnRequestFailed.Remove(RequestFailedHandle);
	}
	if (RequestCompletedHandle.IsValid())
	{
		ChatService->OnRequestCompleted.Remove(RequestCompletedHandle);
	}
	if (MessageAddedHandle.IsValid())
	{
		ChatService->OnMessageAdded.Remove(MessageAddedHandle);
	}
}

void SChatView::LoadChatHistory()
{
	const TObjectPtr<USerializableChatHistory> Conversation = ChatService->GetCurrentConversation();
	if (!IsValid(Conversation))
	{
		return;
	}
	ClearMessages();
	for (const TObjectPtr<UMessage>& Message : Conversation->Messages)
	{
		AddMessageToView(Message);
	}
}

void SChatView::AddMessageToView(TObjectPtr<UMessage> Message)
{
	if (!IsValid(Message))
	{
		UE_LOG(LogVorel, Warning, TEXT("Skipped adding invalid message to chat view"));
		return;
	}
	const FString Text = Message->Contents.IsEmpty() ? FString() : Message->Contents[0]->Text;
	AddMessageToView(Message->Role, Text);
}

// clang-format off
TSharedRef<SChatItem> SChatView::AddMessageToView(EChatRole Role, const FString& Text)
{
	const TSharedRef<SChatItem> Item = SNew(SChatItem).Role(Role).Message(Text);
	if (!ChatBox)
	{
		UE_LOG(LogVorel, Error, TEXT("Chat box is not valid, can't add message to view"));
		return Item;
	}

	ChatBox->AddSlot()
		.Padding(0.0f, 10.0f, 0.0f, 10.0f)
		.AutoHeight()
		[
			SNew(SVerticalBox)
			+ SVerticalBox::Slot()
			.AutoHeight()
			[
				Item
			]
			// Holds nothing: a further 10 units of space below the message.
			+ SVerticalBox::Slot()
			.AutoHeight()
			.Padding(0.0f, 10.0f, 0.0f, 0.0f)
		];
	ScrollToBottom();
	return Item;
}
// clang-format on

void SChatView::ClearMessages()
{
	if (ChatBox)
	{
		ChatBox->ClearChildren();
	}
}

// clang-format off
void SChatView::AddThinkingItem()
{
	if (bIsThinking)
	{
		return;
	}
	ChatBox->AddSlot()
		.AutoHeight()
		.Padding(0.0f, 5.0f, 0.0f, 5.0f)
		[
			SAssignNew(ThinkingItem, SLoadingMessageItem)
		];
	bIsThinking = true;
	ScrollToBottom();
}
// clang-format on

void SChatView::RemoveThinkingItem()
{
	if (!bIsThinking || !ThinkingItem)
	{
		return;
	}
	// A reload may have removed it from the box already.
	ChatBox->RemoveSlot(ThinkingItem.ToSharedRef());
	ThinkingItem.Reset();
	bIsThinking = false;
}

void SChatView::ScrollToBottom()
{
	if (ChatScrollBox)
	{
		ChatScrollBox->ScrollToEnd();
	}
}

void SChatView::HandleChunkReceived(const FString& Chunk)
{
	RemoveThinkingItem();
	if (!CurrentChatItem)
	{
		CurrentChatItem = AddMessageToView(EChatRole::Assistant, FString());
	}
	CurrentChatItem->AddMessageContent(Chunk);
	ScrollToBottom();
}

void SChatView::HandleMessageAdded(TObjectPtr<UMessage> Message)
{
	if (CurrentChatItem)
	{
		CurrentChatItem.Reset();
	}
	else
	{
		AddMessageToView(Message);
	}
	if (Message->Role == EChatRole::User)
	{
		AddThinkingItem();
	}
}

void SChatView::HandleRequestCompleted()
{
	RemoveThinkingItem();
}

void SChatView::HandleRequestFailed(const FString& Error)
{
	RemoveThinkingItem();
	UE_LOG(LogVorel, Error, TEXT("Unexpected error: %s"), *Error);
	if (Notification)
	{
		Notification->PushError(TEXT("Unexpected error!"), Error);
	}
	LoadChatHistory();
	ScrollToBottom();
}
