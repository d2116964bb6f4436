// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Assistant/AnswerReader.h"
#include "Assistant/AssistantEndpoint.h"
#include "Assistant/ChatMessage.h"

class FAuthorizedCall;
struct FHttpFailure;
struct FHttpRequest;

enum class EChatMode : uint8
{
	Agent,
	Chat
};

// Asks an assistant for the next message of a conversation, and for its first model before that where none is chosen.
class FAnswerCall
{
public:
	// The endpoint must outlive the call, which notes the server's first model there.
	FAnswerCall(FAssistantEndpoint& InEndpoint, const FRequestLimits& InLimits);
	~FAnswerCall();

	// Both fire on the game thread, OnEnded once and last, possibly before Start returns. Neither may destroy the call. Destroying it hangs
	// up.
	TFunction<void(const FString&)> OnText;
	TFunction<void(const FAnswerEnd&)> OnEnded;

	void Start(const TArray<FChatMessage>& InMessages, EChatMode InMode);

private:
	void AskForModels();
	void ReadModels(const TOptional<FHttpFailure>& Failure);
	void AskForAnswer();
	void ReadAnswer(std::string_view Bytes);
	void HandleAnswerEnded(const TOptional<FHttpFailure>& Failure);
	void Deliver();
	FHttpRequest MakeRequest(const TCHAR* Path) const;
	FAnswerEnd MakeEnd(const FHttpFailure& Failure) const;

	FAssistantEndpoint& Endpoint;
	FRequestLimits Limits;
	TArray<FChatMessage> Messages;
	EChatMode Mode = EChatMode::Agent;
	TUniquePtr<FAuthorizedCall> Http;
	FAnswerReader Reader;
	bool bAnswerBegan = false;
	std::string Models;
};
