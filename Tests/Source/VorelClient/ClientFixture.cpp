// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

#include "ClientFixture.h"

namespace
{
constexpr qint64 MaxWaitMilliseconds = 10000;

bool RunEventLoopUntil(const TFunction<bool()>& bDone, const TFunction<void()>& AfterEvents)
{
	QTimer WakeUp;
	WakeUp.start(2);
	QElapsedTimer Elapsed;
	Elapsed.start();
	while (!bDone() && Elapsed.elapsed() < MaxWaitMilliseconds)
	{
		QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
		AfterEvents();
	}
	return bDone();
}
} // namespace

bool PumpUntil(const TFunction<bool()>& bDone)
{
	return RunEventLoopUntil(bDone, [] { FTSTicker::GetCoreTicker().Tick(0.016f); });
}

bool WaitForFrameRequest()
{
	return RunEventLoopUntil([] { return FTSTicker::GetCoreTicker().GetTimeToNextTick().Get(1.0f) <= 0.0f; }, [] {});
}

FChatClientTest::FChatClientTest()
{
	Endpoint.BaseUrl = FString((Server.GetAddress() + "/v1").constData());
	Endpoint.Model = TEXT("test-model");
}

UHttpChatService& FChatClientTest::Service()
{
	if (!Started.Get())
	{
		UHttpChatService& Made = Started.Make();
		Made.Initialize(Endpoint, Limits, StoreFile);
		Made.OnRequestFailed.AddLambda([this](const FString& Error) { Record(TEXT("failed(") + Error + TEXT(")")); });
		Made.OnRequestCompleted.AddLambda([this] { Record(TEXT("completed")); });
		Made.OnChunkReceived.AddLambda([this](const FString& Chunk) { Record(TEXT("chunk(") + Chunk + TEXT(")")); });
		Made.OnChatHistoryChanged.AddLambda(
			[this] { Record(FString::Printf(TEXT("history(%d)"), Service().GetCurrentConversation()->Messages.Num())); });
		Made.OnMessageAdded.AddLambda([this](TObjectPtr<UMessage> Message) { RecordMessage(Message); });
		Made.OnChatModeChanged.AddLambda([this](const FString& Name) { Record(TEXT("mode(") + Name + TEXT(")")); });
	}
	return *Started.Get();
}

void FChatClientTest::RecordMessage(TObjectPtr<UMessage> Message)
{
	FString Text = Message->Contents[0]->Text;
	const bool bInterrupted = Text.RemoveFromEnd(TEXT("\n\n*The answer was interrupted here.*"));
	const TCHAR* const Kind = Message->Role == EChatRole::User ? TEXT("user") : bInterrupted ? TEXT("interrupted") : TEXT("answer");
	Record(FString::Printf(TEXT("%s(%s)"), Kind, *Text));
}

void FChatClientTest::Record(const FString& Event)
{
	Events.Add(Event + (Started.Get()->bIsProcessingRequest ? TEXT("*") : TEXT("")));
}

FString FChatClientTest::Ask(const FString& Text, const FScriptedServer::FHandler& Reply)
{
	if (Reply)
	{
		Server.Then(Reply);
	}
	Service().SendMessage(Text);
	EXPECT_TRUE(PumpUntil([this] { return !Service().bIsProcessingRequest; }));
	return TakeEvents();
}

void FChatClientTest::Begin(const FString& Text, const QByteArray& Deltas)
{
	Server.Then(SendAndStayOpen(Deltas));
	Service().SendMessage(Text);
	TakeEvents();
	EXPECT_TRUE(WaitForFrameRequest());
}

FString FChatClientTest::TakeEvents()
{
	const FString Joined = FString::Join(Events, TEXT(" "));
	Events.Reset();
	return Joined;
}

FString FChatClientTest::AskForFailure(const FScriptedServer::FHandler& Reply)
{
	FString Failure;
	Ask(TEXT("Hi"), Reply).Split(TEXT("failed("), nullptr, &Failure);
	return Failure.LeftChop(1);
}
