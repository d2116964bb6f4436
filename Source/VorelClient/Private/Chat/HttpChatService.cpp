// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/HttpChatService.h"

#include "Assistant/FailureText.h"
#include "Chat/ChatModes.h"
#include "Chat/StoredMessage.h"
#include "LogVorel.h"

// Half a second may be lost at most, and writing takes a moment.
static constexpr float SecondsBetweenStores = 0.2f;

UHttpChatService::~UHttpChatService()
{
	Shutdown();
}

void UHttpChatService::Initialize(const FAssistantEndpoint& InEndpoint, const FRequestLimits& InLimits, const FString& StoreFile)
{
	check(!Current);
	Endpoint = InEndpoint;
	Limits = InLimits;
	Conversations.OnForeignChange = [this]
	{
		HandleForeignChange();
	};
	Conversations.Open(StoreFile);
	CurrentModeName = DefaultAgentChatModeName;
	Current = Conversations.Create(CurrentModeName);
}

void UHttpChatService::Shutdown()
{
	if (Request && !Request->bEnding && IsValid(Request->Conversation))
	{
		StoreAnswer(EAnswerEnd::Failed);
	}
	Request.Reset();
	Conversations.Close();
	bShutDown = true;
}

TArray<FString> UHttpChatService::GetChatModeNames() const
{
	TArray<FString> Names;
	for (const FChatMode& Mode : GetChatModes())
	{
		Names.Add(Mode.Name);
	}
	return Names;
}

void UHttpChatService::SetCurrentChatMode(const FString& ModeName)
{
	if (const FChatMode* const Mode = FindChatMode(ModeName))
	{
		Conversations.SetMode(*Current, Mode->Name);
		ChangeMode(Mode->Name);
	}
	else
	{
		UE_LOG(LogVorel, Warning, TEXT("There is no chat mode \"%s\""), *ModeName);
	}
}

TArray<TObjectPtr<USerializableChatHistory>> UHttpChatService::GetChatHistories() const
{
	TArray<TObjectPtr<USerializableChatHistory>> Histories;
	for (const TObjectPtr<UStoredConversation>& Conversation : Conversations.GetAll())
	{
		Histories.Add(Conversation);
	}
	return Histories;
}

void UHttpChatService::LoadConversation(const FString& Id)
{
	UStoredConversation* const Conversation = Conversations.Find(Id);
	if (!Conversation)
	{
		UE_LOG(LogVorel, Warning, TEXT("There is no conversation %s to open"), *Id);
	}
	else if (Current != Conversation || !Current->bLoaded)
	{
		OpenConversation(Conversation);
	}
}

void UHttpChatService::CreateNewConversation(const FString& ModeName)
{
	const FChatMode* const Mode = FindChatMode(ModeName);
	UE_CLOG(!Mode, LogVorel, Warning, TEXT("There is no chat mode \"%s\", the conversation starts in the default one"), *ModeName);
	// Listeners come first, since nothing refers to a new conversation yet.
	CancelRequest(FailureText::ConversationLeft());
	OpenConversation(Conversations.Create(Mode ? Mode->Name : DefaultAgentChatModeName));
}

void UHttpChatService::DeleteChatHistory(const FString& Id)
{
	const TObjectPtr<UStoredConversation> Conversation = Conversations.Find(Id);
	if (!Conversation)
	{
		UE_LOG(LogVorel, Warning, TEXT("There is no conversation %s to delete"), *Id);
		return;
	}
	if (Current == Conversation)
	{
		CancelRequest(FailureText::ConversationDeleted());
	}
	// A listener may have deleted it meanwhile, or opened another one.
	if (!IsValid(Conversation))
	{
		return;
	}
	const bool bOpen = Current == Conversation;
	Conversations.Remove(*Conversation);
	if (bOpen)
	{
		Current = Conversations.Create(DefaultAgentChatModeName);
		ChangeMode(DefaultAgentChatModeName);
	}
	TellHistoryChanged();
}

void UHttpChatService::SendMessage(const FString& Text)
{
	if (Request || bShutDown)
	{
		UE_LOG(LogVorel, Warning, TEXT("A message was not sent, because an answer is under way or the client has shut down"));
		return;
	}
	if (!Current->bLoaded)
	{
		OpenConversation(Current);
	}
	const TSharedRef<FRequest> Own = MakeShared<FRequest>();
	Own->Conversation = Current;
	Request = Own;
	bIsProcessingRequest = true;
	if (!Current->bLoaded)
	{
		// The sender empties the box after this call; what fails later comes back into it.
		MakeStream().Fail(FailureText::ConversationNotRead());
		return;
	}
	if (Conversations.Use(*Current, Text))
	{
		OnChatHistoryChanged.Broadcast();
	}
	// A listener may have cancelled the request meanwhile, and even sent another message.
	if (Request != Own)
	{
		return;
	}
	UStoredMessage* const Message = UStoredMessage::Make({EChatRole::User, Text});
	Conversations.Append(*Own->Conversation, Message, std::make_shared<int64>(0));
	OnMessageAdded.Broadcast(Message);
	if (Request == Own)
	{
		StartAnswer();
	}
}

void UHttpChatService::AddReferencedObjects(FReferenceCollector& Collector)
{
	Conversations.AddReferencedObjects(Collector);
	Collector.AddReferencedObject(Current);
	if (Request)
	{
		Collector.AddReferencedObject(Request->Conversation);
	}
}

TArray<FChatMessage> UHttpChatService::MakeMessages() const
{
	const UStoredConversation& Conversation = *Request->Conversation;
	TArray<FChatMessage> Messages;
	Messages.Add({EChatRole::System, FindChatMode(Conversation.ModeName)->Instructions});
	for (const FMessageRecord& Message : Conversation.GetMessageRecords())
	{
		Messages.Add({Message.Role, Message.Text});
	}
	return Messages;
}

FAnswerStream& UHttpChatService::MakeStream()
{
	Request->Stream = MakeShared<FAnswerStream>(Endpoint, Limits);
	Request->Stream->OnText = [this](const FString& Text)
	{
		HandleText(Text);
	};
	Request->Stream->OnEnded = [this](const FAnswerEnd& End)
	{
		EndRequest(End);
	};
	return *Request->Stream;
}

void UHttpChatService::StartAnswer()
{
	Request->Row = std::make_shared<int64>(0);
	const bool bAgent = IsChatModeNameAnAgent(Request->Conversation->ModeName);
	MakeStream().Start(MakeMessages(), bAgent ? EChatMode::Agent : EChatMode::Chat);
}

void UHttpChatService::HandleText(const FString& Text)
{
	if (!Request->Growth.IsValid())
	{
		Request->Growth = FTSTicker::GetCoreTicker().AddTicker(
			FTickerDelegate::CreateUObject(this, &UHttpChatService::StoreGrowth), SecondsBetweenStores);
	}
	OnChunkReceived.Broadcast(Text);
}

bool UHttpChatService::StoreGrowth(float DeltaTime)
{
	Request->Growth.Reset();
	Conversations.StoreGrowth(*Request->Conversation, Request->Stream->GetAnswer(), Request->Row);
	return false;
}

// Null where nothing had arrived.
UStoredMessage* UHttpChatService::StoreAnswer(EAnswerEnd End)
{
	if (!Request->Stream || Request->Stream->GetAnswer().IsEmpty())
	{
		return nullptr;
	}
	UStoredMessage* const Answer = UStoredMessage::Make({EChatRole::Assistant, Request->Stream->GetAnswer(), End});
	Conversations.Append(*Request->Conversation, Answer, Request->Row);
	return Answer;
}

void UHttpChatService::EndRequest(const FAnswerEnd& End)
{
	Request->bEnding = true;
	bIsProcessingRequest = false;
	if (UStoredMessage* const Answer = StoreAnswer(End.Kind))
	{
		OnMessageAdded.Broadcast(Answer);
	}
	// From here on the next message may be sent.
	Request.Reset();
	if (End.Kind == EAnswerEnd::Failed)
	{
		Endpoint.FirstModel.Reset();
		OnRequestFailed.Broadcast(End.Failure.ToString());
	}
	else
	{
		OnRequestCompleted.Broadcast();
	}
	if (End.bMayHaveCost && Endpoint.Tokens && OnCreditsSpent)
	{
		OnCreditsSpent();
	}
	if (bHistoryChangeWaits)
	{
		TellHistoryChanged();
	}
	if (bForeignChangeWaits)
	{
		Conversations.MergeLater();
	}
}

void UHttpChatService::CancelRequest(const FText& Reason)
{
	if (!Request || Request->bEnding)
	{
		return;
	}
	if (Request->Stream)
	{
		Request->Stream->Cancel();
	}
	EndRequest({EAnswerEnd::Failed, Reason});
}

void UHttpChatService::OpenConversation(TObjectPtr<UStoredConversation> Conversation)
{
	CancelRequest(FailureText::ConversationLeft());
	// A listener may have deleted it meanwhile.
	if (!IsValid(Conversation))
	{
		return;
	}
	const TObjectPtr<UStoredConversation> Left = Current;
	Conversations.Load(*Conversation);
	Current = Conversation;
	ChangeMode(Conversation->ModeName);
	TellHistoryChanged();
	// A listener may have come back to it.
	if (Left != Current && IsValid(Left))
	{
		Conversations.Release(*Left);
	}
}

void UHttpChatService::ChangeMode(const FString& ModeName)
{
	if (CurrentModeName != ModeName)
	{
		CurrentModeName = ModeName;
		OnChatModeChanged.Broadcast(CurrentModeName);
	}
}

void UHttpChatService::TellHistoryChanged()
{
	bHistoryChangeWaits = Request.IsValid();
	if (!bHistoryChangeWaits)
	{
		OnChatHistoryChanged.Broadcast();
	}
}

void UHttpChatService::HandleForeignChange()
{
	bForeignChangeWaits = Request.IsValid();
	if (bForeignChangeWaits || !Conversations.Merge(*Current))
	{
		return;
	}
	if (!IsValid(Current))
	{
		Current = Conversations.Create(DefaultAgentChatModeName);
	}
	ChangeMode(Current->ModeName);
	TellHistoryChanged();
}
