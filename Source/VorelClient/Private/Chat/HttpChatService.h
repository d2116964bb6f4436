// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Assistant/AssistantEndpoint.h"
#include "Chat/AnswerStream.h"
#include "Chat/ConversationRepository.h"
#include "ChatService.h"

// Holds conversations with a chat-completions server.
//
// One request fires in this order: bIsProcessingRequest becomes true; OnChatHistoryChanged where the list or its order changes, with the
// user's message not yet in Messages; OnMessageAdded of the user's message; OnChunkReceived, at most once a frame; bIsProcessingRequest
// becomes false; OnMessageAdded of the answer; last, exactly one of OnRequestCompleted and OnRequestFailed. OnChatHistoryChanged never
// comes in between: the deletion of another conversation is told after the end. A request that fails or is cancelled keeps what had arrived
// as an interrupted message; without any text there is none. What other programs change in the store is told by OnChatHistoryChanged too,
// and never between the events of a request.
//
// A message is stored before it is told of, and an answer while it grows, so that neither is lost when the process ends.
class UHttpChatService final : public UChatService
{
public:
	~UHttpChatService() override;

	// To be called once, before anything else. Without a file the conversations are kept for this run.
	void Initialize(const FAssistantEndpoint& InEndpoint, const FRequestLimits& InLimits, const FString& StoreFile);

	// An answer of our own service has ended, which may have cost credits.
	TFunction<void()> OnCreditsSpent;

	// Hangs up without telling anybody, and stores what is not stored yet; the service can send no more.
	void Shutdown();

	FString GetCurrentChatModeName() const override { return CurrentModeName; }
	TArray<FString> GetChatModeNames() const override;
	// Also for the open conversation. An unknown name is logged and ignored.
	void SetCurrentChatMode(const FString& ModeName) override;

	TArray<TObjectPtr<USerializableChatHistory>> GetChatHistories() const override;
	TObjectPtr<USerializableChatHistory> GetCurrentConversation() const override { return Current; }

	// Stops an answer under way, as opening a new conversation does. Takes over the mode in which the conversation was held.
	void LoadConversation(const FString& Id) override;
	// An unknown mode is logged, and the default one taken. Fires OnChatModeChanged if that changes the mode, then OnChatHistoryChanged.
	void CreateNewConversation(const FString& ModeName) override;
	// Stops an answer under way in this conversation. An open one makes room for a new one in the default mode, which fires as a new one
	// does. The object is marked as garbage before that.
	void DeleteChatHistory(const FString& Id) override;
	// Ignored, and logged, while an answer is under way. Fails in the next frame in a conversation whose earlier messages
	// can't be read.
	void SendMessage(const FString& Text) override;

	void AddReferencedObjects(FReferenceCollector& Collector) override;

private:
	struct FRequest
	{
		~FRequest() { FTSTicker::RemoveTicker(Growth); }

		TObjectPtr<UStoredConversation> Conversation;
		TSharedPtr<FAnswerStream> Stream;
		// Where the answer is stored as it grows, and the ticker that will do so next.
		FMessageRow Row;
		FTSTicker::FDelegateHandle Growth;
		bool bEnding = false;
	};

	TArray<FChatMessage> MakeMessages() const;
	FAnswerStream& MakeStream();
	void StartAnswer();
	void HandleText(const FString& Text);
	bool StoreGrowth(float DeltaTime);
	UStoredMessage* StoreAnswer(EAnswerEnd End);
	void EndRequest(const FAnswerEnd& End);
	void CancelRequest(const FText& Reason);
	void OpenConversation(TObjectPtr<UStoredConversation> Conversation);
	void ChangeMode(const FString& ModeName);
	void TellHistoryChanged();
	void HandleForeignChange();

	FAssistantEndpoint Endpoint;
	FRequestLimits Limits;
	FConversationRepository Conversations;
	TObjectPtr<UStoredConversation> Current;
	FString CurrentModeName;
	TSharedPtr<FRequest> Request;
	bool bHistoryChangeWaits = false;
	bool bForeignChangeWaits = false;
	bool bShutDown = false;
};
