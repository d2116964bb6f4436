// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Chat/StoredConversation.h"

class UStoredMessage;

// The conversations of this run. Each becomes part of the list with its first message; a new one that is never used is nowhere kept.
class FConversationRepository
{
public:
	UStoredConversation* Create(const FString& ModeName);

	// Null for an id that is not in the list.
	UStoredConversation* Find(const FString& Id) const;

	// The last used first.
	const TArray<TObjectPtr<UStoredConversation>>& GetAll() const { return Conversations; }

	// Marks a conversation as used now by a message of the user, which names it if it is the first. True where the list or its order
	// changed.
	bool Use(UStoredConversation& Conversation, const FString& UserText);

	void Append(UStoredConversation& Conversation, UStoredMessage* Message);
	void Remove(const FString& Id);

	void AddReferencedObjects(FReferenceCollector& Collector) { Collector.AddReferencedObjects(Conversations); }

private:
	TArray<TObjectPtr<UStoredConversation>> Conversations;
};
