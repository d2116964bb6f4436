// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Chat/StoredConversation.h"
#include "Store/ConversationArchive.h"

// The conversations as objects, one for each as long as the program runs. They are kept in a store where there is one, else for this run.
// Each becomes part of the list with its first message; a new one that is never used is nowhere kept.
class FConversationRepository
{
public:
	FConversationRepository();
	~FConversationRepository();

	// Another program has changed the store, so it is time for a merge. Fires in a frame.
	TFunction<void()> OnForeignChange;

	// To be called once. With an empty path, or where the file can't be used, all stays in memory.
	void Open(const FString& File);

	// Writes what is left. What changes afterwards is not kept.
	void Close();

	UStoredConversation* Create(const FString& ModeName);

	// Null for an id that is not in the list.
	UStoredConversation* Find(const FString& Id) const;

	// The last used first.
	const TArray<TObjectPtr<UStoredConversation>>& GetAll() const { return Conversations; }

	// Fills in the messages, bLoaded tells whether all, and lets them go again where the store has them.
	void Load(UStoredConversation& Conversation);
	void Release(UStoredConversation& Conversation);

	// Marks a conversation as used now by a message of the user, which names it if it is the first. True where the list or its order
	// changed.
	bool Use(UStoredConversation& Conversation, const FString& UserText);

	// Once this returns, the message outlives the end of the process, whatever its reason, unless the store can't be written to. The row is
	// the one in which the answer grew.
	void Append(UStoredConversation& Conversation, UStoredMessage* Message, const FMessageRow& Row);

	// Stores what has arrived of an answer, without waiting.
	void StoreGrowth(const UStoredConversation& Conversation, const FString& Answer, const FMessageRow& Row);

	void SetMode(UStoredConversation& Conversation, const FString& ModeName);

	// Takes it from the list and marks it as garbage.
	void Remove(UStoredConversation& Conversation);

	// Takes over what other programs did, also to the messages of the open conversation. What they deleted is marked as garbage. True where
	// something changed. Where it is too early, OnForeignChange fires again.
	bool Merge(UStoredConversation& Open);
	void MergeLater();

	void AddReferencedObjects(FReferenceCollector& Collector) { Collector.AddReferencedObjects(Conversations); }

private:
	bool MergeList(const TArray<FConversationRecord>& Records);
	bool MergeMessages(UStoredConversation& Conversation);

	TArray<TObjectPtr<UStoredConversation>> Conversations;
	TUniquePtr<FConversationArchive> Archive;
};
