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
// as an interrupted message; without any text there is none.
class UHttpChatService final : public UChatService
{
public:
	~UHttpChatService() override;

	// To be called once, before anything else.
	void Initialize(const FAssistantEndpoint& InEndpoint, const FRequestLimits& InLimits);

	// Hangs up without telling anybody; the service can send no more.
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
	// Stops an answer under way in this conversation. An open one makes room for a new one in the same mode.
	void DeleteChatHistory(const FString& Id) override;
	// Ignored, and logged, while an answer is under way.
	void SendMessage(const FString& Text) override;

	void AddReferencedObjects(FReferenceCollector& Collector) override;

private:
	struct FRequest
	{
		TObjectPtr<UStoredConversation> Conversation;
		// What was handed over so far.
		FString Answer;
		TSharedPtr<FAnswerStream> Stream;
		bool bEnding = false;
	};

	TArray<FChatMessage> MakeMessages() const;
	void StartAnswer();
	void HandleText(const FString& Text);
	void EndRequest(const FAnswerEnd& End);
	void CancelRequest(const FText& Reason);
	void OpenConversation(UStoredConversation* Conversation);
	void ChangeMode(const FString& ModeName);
	void TellHistoryChanged();

	FAssistantEndpoint Endpoint;
	FRequestLimits Limits;
	FConversationRepository Conversations;
	TObjectPtr<UStoredConversation> Current;
	FString CurrentModeName;
	TSharedPtr<FRequest> Request;
	bool bHistoryChangeWaits = false;
	bool bShutDown = false;
};
