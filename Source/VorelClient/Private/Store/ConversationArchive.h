// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "ConversationStore.h"
#include <memory>

// The number of a message's row, known once it was written. Of the writing thread alone.
using FMessageRow = std::shared_ptr<int64>;

// The store of a running program. Reads at once, on a connection of the game thread; writes on another one, which a thread of its own has,
// in order and without being waited for. What goes wrong is logged, and never stops the program.
class FConversationArchive
{
public:
	// A damaged file is set aside, and a new one begun. Null where the conversations can't be kept in this file.
	static TUniquePtr<FConversationArchive> Open(const FString& File);

	// Returns once all is written that can be.
	~FConversationArchive();

	// Another program has changed the store, and nothing of our own waits to be written. Fires in a frame soon after.
	TFunction<void()> OnForeignChange;

	// The last used first. False where not all could be read.
	bool ReadConversations(TArray<FConversationRecord>& OutConversations);
	bool ReadMessages(const FString& Id, TArray<FMessageRecord>& OutMessages);

	// The first message comes with its conversation, and later ones change nothing where another program has deleted that.
	void AddConversation(const FConversationRecord& Conversation, const FMessageRecord& FirstMessage);
	// One row is one message, put as often as it grows.
	void PutMessage(const FConversationRecord& Conversation, const FMessageRecord& Message, const FMessageRow& Row);
	void SetMode(const FString& Id, const FString& ModeName);
	void Delete(const FString& Id);

	// Waits for a moment until all is written, so that what is shown next is not lost whatever happens.
	void Settle();

	// All is written.
	bool IsSettled() const;

	// Lets OnForeignChange fire again as soon as it can.
	void RepeatForeignChange();

private:
	struct FParts;

	explicit FConversationArchive(TUniquePtr<FParts> InParts);

	TUniquePtr<FParts> Parts;
};
