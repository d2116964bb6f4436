// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// Why a request failed, in sentences for the user. What a server wrote is shown as plain text, shortened, and without control characters.
namespace FailureText
{
enum class EPhase : uint8
{
	Connecting,
	WaitingForFirstByte,
	Receiving
};

// Of the connection itself.
FText BadAddress(const FString& Address);
FText NotReached(const FString& Host);
FText HostNotFound(const FString& Host);
FText NotSecure(const FString& Host);
FText ProxyFailed();
FText BrokenOff();
FText TimeLimit(EPhase Phase, double Seconds, const FString& Host);
FText RedirectedElsewhere(const FString& Origin);
FText TooManyRedirects();

// Of what the server said. Detail is the server's own text and may be empty, RetryAfter a number of seconds or empty.
FText Status(int32 Code, const FString& Detail, const FString& RetryAfter);
FText ServerError(const FString& Detail);
FText NotAnAnswer();
FText WebPage(const FString& Title);
FText TooLong();
FText NoModel();

// Of an answer that ended in order, and yet holds no text.
FText Empty();
FText EmptyByLengthLimit();
FText Withheld();

// Of what the user did.
FText ConversationDeleted();
FText ConversationLeft();

FText ConversationNotRead();
} // namespace FailureText

// One line of at most 200 characters.
FString MakeExcerpt(const FString& ForeignText);
