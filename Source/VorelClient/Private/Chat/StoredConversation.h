// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "ConversationRecord.h"
#include "SerializableChatHistory.h"

class UStoredMessage;

class UStoredConversation final : public USerializableChatHistory
{
public:
	static UStoredConversation* Make(const FConversationRecord& Record);

	FConversationRecord GetRecord() const { return {Id, Title, ModeName, Created, LastUsed}; }
	// All but the id, which never changes. True where something became different.
	bool SetRecord(const FConversationRecord& Record);

	TArray<FMessageRecord> GetMessageRecords() const;
	void SetMessageRecords(const TArray<FMessageRecord>& Records);

	// Once it has been started, which is before its first message is in Messages.
	bool IsValidHistory() const override { return !Id.IsEmpty() && LastUsed != 0; }

	// At most MaxLength characters as a reader counts them, an ellipsis included. With bShorten the time of its last use stands before
	// that, outside of the limit, as the short form of a row.
	FString GetDisplayableTitle(bool bShorten, int32 MaxLength) override;

	FString ModeName;

	// Of the first message, as one line. Empty if that holds nothing but blanks.
	FString Title;

	// Milliseconds since 1970 in UTC; 0 before the first message.
	int64 Created = 0;
	int64 LastUsed = 0;

	// It has a place in the store, or was given to it.
	bool bStored = false;

	// Messages holds all there are.
	bool bLoaded = false;
};
