// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "ScriptedServer.h"

#include "Chat/HttpChatService.h"
#include "Support/LogCapture.h"
#include "Support/Printers.h"
#include <gtest/gtest.h>

// Runs the event loop and frames until something is so; false after ten seconds.
bool PumpUntil(const TFunction<bool()>& bDone);

// Runs the event loop alone until a frame is asked for.
bool WaitForFrameRequest();

// The real chat service against a scripted server, and a record of all that it tells.
class FChatClientTest : public testing::Test
{
protected:
	FChatClientTest();
	~FChatClientTest() override;

	// Takes effect where it is called before the first use of the service.
	FAssistantEndpoint Endpoint;
	FRequestLimits Limits;
	FString StoreFile;

	UHttpChatService& Service();
	// As at the end of the program; the next use begins anew.
	void EndService();

	// Sends and waits for the end; returns what was told since the last time.
	FString Ask(const FString& Text);
	// What was told since the last time, parted by blanks: "user(text)", "chunk(text)", "answer(text)", "interrupted(text)",
	// "history(number of stored messages)", "mode(name)", "completed", "failed(sentence)". A star follows where bIsProcessingRequest was
	// true.
	FString TakeEvents();
	// The sentence of a question that fails.
	FString AskForFailure();

	void Tick();

	FScriptedServer Server;
	FLogCapture Log;

private:
	void Record(const FString& Event);
	void RecordMessage(TObjectPtr<UMessage> Message);

	TObjectPtr<UHttpChatService> Made;
	TArray<FString> Events;
};
