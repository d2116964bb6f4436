// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

class UMessage;
class USerializableChatHistory;

DECLARE_MULTICAST_DELEGATE_OneParam(FOnRequestFailed, const FString& /* Error, shown to the user */);
DECLARE_MULTICAST_DELEGATE(FOnRequestCompleted);
DECLARE_MULTICAST_DELEGATE_OneParam(FOnChunkReceived, const FString& /* Chunk */);
DECLARE_MULTICAST_DELEGATE(FOnChatHistoryChanged);
DECLARE_MULTICAST_DELEGATE_OneParam(FOnMessageAdded, TObjectPtr<UMessage> /* Message */);
DECLARE_MULTICAST_DELEGATE_OneParam(FOnChatModeChanged, const FString& /* ModeName */);

// Conversations and requests. Every delegate fires on the game thread.
class UChatService : public UObject
{
public:
	FOnRequestFailed OnRequestFailed;
	FOnRequestCompleted OnRequestCompleted;
	FOnChunkReceived OnChunkReceived;

	// The list of conversations or the current conversation changed.
	FOnChatHistoryChanged OnChatHistoryChanged;

	// A message was stored in the current conversation.
	FOnMessageAdded OnMessageAdded;
	FOnChatModeChanged OnChatModeChanged;

	// True from the moment a request is sent until its answer has ended.
	bool bIsProcessingRequest = false;

	// The mode that a new chat starts in.
	static const FString DefaultAgentChatModeName;

	virtual FString GetCurrentChatModeName() const = 0;

	// In display order.
	virtual TArray<FString> GetChatModeNames() const = 0;

	// Changes the mode in place; leads to OnChatModeChanged.
	virtual void SetCurrentChatMode(const FString& ModeName) = 0;

	static bool IsChatModeNameAnAgent(const FString& ModeName);

	virtual TArray<TObjectPtr<USerializableChatHistory>> GetChatHistories() const = 0;

	// May be null.
	virtual TObjectPtr<USerializableChatHistory> GetCurrentConversation() const = 0;

	// Opens a stored conversation; leads to OnChatHistoryChanged.
	virtual void LoadConversation(const FString& Id) = 0;
	virtual void CreateNewConversation(const FString& ModeName) = 0;
	virtual void DeleteChatHistory(const FString& Id) = 0;
	virtual void SendMessage(const FString& Text) = 0;
};
