// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "SerializableChatHistory.h"

class UStoredConversation final : public USerializableChatHistory
{
public:
	FString ModeName;

	// Of the first message, as one line. Empty if that holds nothing but blanks.
	FString Title;

	// Milliseconds since 1970 in UTC; 0 before the first message.
	int64 LastUsed = 0;

	// Once it has been started, which is before its first message is in Messages.
	bool IsValidHistory() const override { return !Id.IsEmpty() && LastUsed != 0; }

	// At most MaxLength characters as a reader counts them, an ellipsis included. With time, the time of its last use stands before that.
	FString GetDisplayableTitle(bool bWithTime, int32 MaxLength) override;
};
