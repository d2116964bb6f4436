// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Message.h"
#include "Misc/Optional.h"

// How an answer ended. The numbers are stored.
enum class EAnswerEnd : uint8
{
	Complete = 0,
	// Complete as far as the protocol goes, but cut by the server.
	LengthLimit = 1,
	ContentFilter = 2,
	// It was interrupted, and holds what had arrived by then.
	Failed = 3
};

struct FMessageRecord
{
	EChatRole Role = EChatRole::User;
	FString Text;
	// Unset while the answer is still growing.
	TOptional<EAnswerEnd> End = EAnswerEnd::Complete;

	friend bool operator==(const FMessageRecord& Lhs, const FMessageRecord& Rhs)
	{
		return Lhs.Role == Rhs.Role && Lhs.End == Rhs.End && Lhs.Text.Equals(Rhs.Text);
	}
};

// Times are milliseconds since 1970 in UTC.
struct FConversationRecord
{
	// Letter case does not count.
	FString Id;
	// One line, possibly empty.
	FString Title;
	FString ModeName;
	int64 Created = 0;
	int64 LastUsed = 0;

	// One that is nobody's.
	static FString MakeId();
};
