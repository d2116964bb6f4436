// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Assistant/AnswerCall.h"
#include "Containers/Ticker.h"

// Hands over what a call delivers at most once a frame, however many packets it came in.
class FAnswerStream : public TSharedFromThis<FAnswerStream>
{
public:
	FAnswerStream(FAssistantEndpoint& Endpoint, const FRequestLimits& Limits);
	~FAnswerStream();

	// Both fire in a frame after Start, and may let go of the stream. OnEnded comes once and last, in the same frame as the rest of the
	// text.
	TFunction<void(const FString&)> OnText;
	TFunction<void(const FAnswerEnd&)> OnEnded;

	void Start(const TArray<FChatMessage>& Messages, EChatMode Mode);

	// In place of starting: it ends with this.
	void Fail(const FText& Failure);

	// Nothing fires from now on; the server is hung up on when the stream goes.
	void Cancel();

	// All that has arrived, handed over or not, without a note.
	const FString& GetAnswer() const { return Answer; }

private:
	void AskForFrame();
	bool HandleFrame(float DeltaTime);

	FAnswerCall Call;
	FString Answer;
	FString Waiting;
	TOptional<FAnswerEnd> End;
	FTSTicker::FDelegateHandle Frame;
	bool bCancelled = false;
};
