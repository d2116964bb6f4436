// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Assistant/ServerSentEventParser.h"
#include "ConversationRecord.h"
#include <string>
#include <string_view>

struct FAnswerEnd
{
	EAnswerEnd Kind = EAnswerEnd::Complete;
	// For the user; only of a failed one.
	FText Failure;
	// Whether it may have cost something.
	bool bMayHaveCost = true;
};

// Reads the body of a successful chat-completions reply. Takes what compatible servers really send: a stream with or without end mark,
// finish reason, role or usage, errors inside of it, and a whole JSON reply in its place. It is complete only with a finish reason or the
// end mark.
class FAnswerReader
{
public:
	// No answer is longer; a server that babbles on must not fill the memory.
	static constexpr int32 MaxAnswerLength = 16 * 1024 * 1024;

	void Feed(std::string_view Bytes);

	// The body has ended. The answer has an end from now on.
	void Close();

	// What arrived since the last call.
	FString TakeText();

	// Once set, the rest of the body says nothing new.
	const TOptional<FAnswerEnd>& GetEnd() const { return End; }

private:
	void ReadEvent(const FServerSentEvent& Event);
	void ReadUnfinishedEvent();
	void ReadBodyWithoutEvents();
	// False for what is no chunk, reply or error.
	bool ReadObject(std::string_view Json);
	void AddText(const FString& Added);
	void Finish(EAnswerEnd Kind);
	void Fail(const FText& Failure);

	FServerSentEventParser Parser;
	// The bytes so far, as long as no event has shown that this is a stream.
	std::string Head;
	bool bEventSeen = false;
	FString Text;
	int32 AnswerLength = 0;
	TOptional<FAnswerEnd> End;
};

// The message of an error body: of its "error" object or text, or of its "message". Empty where there is none.
FString ReadErrorMessage(std::string_view Body);
