// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

struct FHttpFailure;

// Why a request failed, in sentences for the user. What a server wrote is shown as plain text, shortened, and without control characters.
namespace FailureText
{
// Of the connection itself.
FText BadAddress(const FString& Address);
FText Describe(const FHttpFailure& Failure);
// Of our own service, which knows users and credits.
FText DescribeOfService(const FHttpFailure& Failure, const FString& BillingUrl);
FText BrokenOff();

// Of what the server said. Detail is the server's own text and may be empty.
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
