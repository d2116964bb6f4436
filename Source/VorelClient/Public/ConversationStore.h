// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "ConversationRecord.h"
#include "Store/StoreError.h"
#include "Templates/UniquePtr.h"

class FSqliteDatabase;

// The conversations in one file, for one thread at a time. Several stores, of several programs too, may have the same file open. What an
// operation that fails was to change stays as it was.
class FConversationStore
{
public:
	// The store's name in the folder for data.
	static const TCHAR* const FileName;

	enum class EMissingFile
	{
		Refuse,
		Create
	};

	// Checks the whole file, and brings one of an older version up to date after a backup beside it. Null, with the reason, for a file that
	// can't be read and written; it is left as it is.
	static TUniquePtr<FConversationStore> Open(const FString& File, EMissingFile MissingFile, FStoreError& OutError);

	// Without the checks, of a file that was just opened by the other way.
	static TUniquePtr<FConversationStore> OpenAgain(const FString& File, FStoreError& OutError);

	// Moves a damaged file, and what belongs to it, to a name of its own. Returns that name, or nothing where it can't be moved.
	static FString SetAside(const FString& File);

	~FConversationStore();

	// The last used first.
	FStoreError ReadConversations(TArray<FConversationRecord>& OutConversations);
	// In order of time. None for an unknown id.
	FStoreError ReadMessages(const FString& Id, TArray<FMessageRecord>& OutMessages);

	// A new conversation with its messages.
	FStoreError AddConversation(const FConversationRecord& Conversation, const TArray<FMessageRecord>& Messages);

	// Adds a message, or changes the one that an earlier call put into InOutRow, which is 0 at first, and tells when the conversation was
	// last used. A conflict where another program has deleted the conversation, but only at the first of several calls for one message.
	FStoreError PutMessage(const FConversationRecord& Conversation, const FMessageRecord& Message, int64& InOutRow);

	FStoreError SetMode(const FString& Id, const FString& ModeName);
	FStoreError Delete(const FString& Id, bool& bOutFound);

	// Answers that were growing when their program ended.
	FStoreError InterruptGrowingAnswers();

	// Whether somebody else has changed the file since the last call.
	FStoreError HasForeignChange(bool& bOutChanged);

private:
	struct FStatements;

	explicit FConversationStore(TUniquePtr<FSqliteDatabase> InDatabase);

	TUniquePtr<FSqliteDatabase> Database;
	TUniquePtr<FStatements> Statements;
	int64 DataVersion = 0;
};
