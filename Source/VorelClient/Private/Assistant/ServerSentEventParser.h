// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include <string>
#include <string_view>

struct FServerSentEvent
{
	// Empty for a plain message.
	FString Type;
	FString Data;
};

// Cuts the bytes of a text/event-stream into events, wherever the network cut them. Text is decoded per event, so a character that arrives
// in two packets stays whole. The fields "id" and "retry" are of no use here: nothing reconnects.
class FServerSentEventParser
{
public:
	// No line and no event is longer.
	static constexpr std::size_t MaxEventBytes = 8 * 1024 * 1024;

	// Adds the events that these bytes complete. False once a limit is broken; the stream is then of no further use.
	bool Feed(std::string_view Bytes, TArray<FServerSentEvent>& OutEvents);

	// The event whose blank line the end of the stream swallowed. The grammar discards it; the caller may know better.
	TOptional<FServerSentEvent> TakeUnfinished();

private:
	void EndLine(TArray<FServerSentEvent>& OutEvents);
	void TakeField(std::string_view Field);
	FServerSentEvent TakeEvent();

	// The line under way, without its end.
	std::string Line;
	std::string Type;
	// Each data line with a line feed after it.
	std::string Data;
	bool bFirstLine = true;
	// The last byte was a carriage return: a line feed that follows belongs to it.
	bool bAfterCarriageReturn = false;
};
