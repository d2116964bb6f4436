// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/HttpChatService.h"

#include "Assistant/FailureText.h"
#include "Chat/AnswerNote.h"
#include "Chat/ChatModes.h"
#include "Chat/StoredMessage.h"
#include "LogVorel.h"

UHttpChatService::~UHttpChatService()
{
	Shutdown();
}

void UHttpChatService::Initialize(const FAssistantEndpoint& InEndpoint, const FRequestLimits& InLimits)
{
	check(!Current);
	Endpoint = InEndpoint;
	Limits = InLimits;
	CurrentModeName = DefaultAgentChatModeName;
	Current = Conversations.Create(CurrentModeName);
}

void UHttpChatService::Shutdown()
{
	if (Request && Request->Stream)
	{
		Request->Stream->Cancel();
	}
	Request.Reset();
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
		Current->ModeName = Mode->Name;
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
	else if (Current != Conversation)
	{
		OpenConversation(Conversation);
	}
}

void UHttpChatService::CreateNewConversation(const FString& ModeName)
{
	const FChatMode* const Mode = FindChatMode(ModeName);
	UE_CLOG(!Mode, LogVorel, Warning, TEXT("There is no chat mode \"%s\", the conversation starts in the default one"), *ModeName);
	OpenConversation(Conversations.Create(Mode ? Mode->Name : DefaultAgentChatModeName));
}

void UHttpChatService::DeleteChatHistory(const FString& Id)
{
	UStoredConversation* const Conversation = Conversations.Find(Id);
	if (!Conversation)
	{
		UE_LOG(LogVorel, Warning, TEXT("There is no conversation %s to delete"), *Id);
		return;
	}
	if (Current == Conversation)
	{
		CancelRequest(FailureText::ConversationDeleted());
		Current = Conversations.Create(CurrentModeName);
	}
	Conversations.Remove(Id);
	TellHistoryChanged();
}

void UHttpChatService::SendMessage(const FString& Text)
{
	if (Request || bShutDown)
	{
		UE_LOG(LogVorel, Warning, TEXT("A message was not sent, because an answer is under way or the client has shut down"));
		return;
	}
	const TSharedRef<FRequest> Own = MakeShared<FRequest>();
	Own->Conversation = Current;
	Request = Own;
	bIsProcessingRequest = true;
	if (Conversations.Use(*Current, Text))
	{
		OnChatHistoryChanged.Broadcast();
	}
	// A listener may have cancelled the request meanwhile, and even sent another message.
	if (Request != Own)
	{
		return;
	}
	UStoredMessage* const Message = UStoredMessage::Make(EChatRole::User, Text);
	Conversations.Append(*Own->Conversation, Message);
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
	for (const TObjectPtr<UMessage>& Message : Conversation.Messages)
	{
		const UStoredMessage* const Stored = static_cast<const UStoredMessage*>(Message.Get());
		FString Text = Stored->GetText();
		Text.RemoveFromEnd(GetAnswerNote(Stored->End));
		Messages.Add({Stored->Role, Text});
	}
	return Messages;
}

void UHttpChatService::StartAnswer()
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
	Request->Stream->Start(MakeMessages());
}

void UHttpChatService::HandleText(const FString& Text)
{
	Request->Answer += Text;
	OnChunkReceived.Broadcast(Text);
}

void UHttpChatService::EndRequest(const FAnswerEnd& End)
{
	Request->bEnding = true;
	bIsProcessingRequest = false;
	if (!Request->Answer.IsEmpty())
	{
		UStoredMessage* const Answer = UStoredMessage::Make(EChatRole::Assistant, Request->Answer);
		Answer->End = End.Kind;
		Conversations.Append(*Request->Conversation, Answer);
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
	if (bHistoryChangeWaits)
	{
		TellHistoryChanged();
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
		Request->Answer += Request->Stream->Cancel();
	}
	EndRequest({EAnswerEnd::Failed, Reason});
}

void UHttpChatService::OpenConversation(UStoredConversation* Conversation)
{
	CancelRequest(FailureText::ConversationLeft());
	Current = Conversation;
	ChangeMode(Conversation->ModeName);
	TellHistoryChanged();
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
