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

// A service from its start to its end, as at the end of the program.
template <typename ServiceType>
class TStarted
{
public:
	~TStarted() { End(); }

	ServiceType& Make()
	{
		Made = NewObject<ServiceType>();
		Made->AddToRoot();
		return *Made;
	}

	void End()
	{
		if (Made)
		{
			Made->Shutdown();
			Made->RemoveFromRoot();
			Made = nullptr;
		}
		CollectGarbage();
	}

	ServiceType* Get() const { return Made; }

private:
	ServiceType* Made = nullptr;
};

// The real chat service against a scripted server, and a record of all that it tells.
class FChatClientTest : public testing::Test
{
protected:
	FChatClientTest();

	// Takes effect where it is called before the first use of the service.
	FAssistantEndpoint Endpoint;
	FRequestLimits Limits;
	FString StoreFile;

	UHttpChatService& Service();
	// The next use begins anew.
	void EndService() { Started.End(); }

	// Sends and waits for the end; returns what was told since the last time. Without a reply here the server has one already.
	FString Ask(const FString& Text, const FScriptedServer::FHandler& Reply = {});
	// Sends, and waits until so much of an answer arrived and a frame is asked for.
	void Begin(const FString& Text, const QByteArray& Deltas);
	// What was told since the last time, parted by blanks: "user(text)", "chunk(text)", "answer(text)", "interrupted(text)",
	// "history(number of stored messages)", "mode(name)", "completed", "failed(sentence)". A star follows where bIsProcessingRequest was
	// true.
	FString TakeEvents();
	// The sentence of a question that fails.
	FString AskForFailure(const FScriptedServer::FHandler& Reply = {});

	static void Tick() { FTSTicker::GetCoreTicker().Tick(0.016f); }

	FScriptedServer Server;
	FLogCapture Log;

private:
	void Record(const FString& Event);
	void RecordMessage(TObjectPtr<UMessage> Message);

	TArray<FString> Events;
	TStarted<UHttpChatService> Started;
};
