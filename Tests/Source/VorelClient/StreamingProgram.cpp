// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

#include "ScriptedServer.h"
#include "StreamingProgram.h"

#include "Chat/HttpChatService.h"
#include <chrono>
#include <cstdio>
#include <unistd.h>

namespace
{
constexpr int32 PiecesOfAnAnswer = 400;
constexpr int32 QuestionsOfAConversation = 2;

std::string GetPiece(int32 Number, int32 Index)
{
	return std::to_string(Number) + "." + std::to_string(Index) + " words of this answer; ";
}

// One write each, so that what was said is said also when the process ends right behind.
void Say(const FString& Line)
{
	const FTCHARToUTF8 Bytes(Line + TEXT("\n"));
	check(::write(STDOUT_FILENO, Bytes.Get(), static_cast<size_t>(Bytes.Length())) == Bytes.Length());
}

class FConversing
{
public:
	FConversing(const FString& StoreFile, int32 FirstNumber)
		: Number(FirstNumber)
	{
		FAssistantEndpoint Endpoint;
		Endpoint.BaseUrl = FString((Server.GetAddress() + "/v1").constData());
		Endpoint.Model = TEXT("any");
		Service->AddToRoot();
		Service->Initialize(Endpoint, FRequestLimits(), StoreFile);
		Service->OnMessageAdded.AddLambda([this](TObjectPtr<UMessage> Message) { HandleMessage(*Message); });
		Service->OnChunkReceived.AddLambda([this](const FString& Chunk) { HandleChunk(Chunk); });
		Service->OnRequestCompleted.AddLambda([this] { QTimer::singleShot(0, [this] { AskNext(); }); });
		QObject::connect(&Pieces, &QTimer::timeout, [this] { SendPiece(); });
		QObject::connect(
			&Frames, &QTimer::timeout, [this] { FTSTicker::GetCoreTicker().Tick(static_cast<float>(SinceLastFrame.restart()) / 1000.0f); });
		Frames.start(5);
		SinceLastFrame.start();
		AskNext();
	}

private:
	void AskNext()
	{
		if (++Number % QuestionsOfAConversation == 0)
		{
			Service->CreateNewConversation(TEXT("Ask"));
		}
		Shown = 0;
		Server.Then(
			[this](const FExchange& Exchange)
			{
				Asker = Exchange;
				Sent = 0;
				Asker.SendStreamHead();
				Pieces.start(1);
			});
		Service->SendMessage(FString::Printf(TEXT("Question %d"), Number));
	}

	void SendPiece()
	{
		Asker.Send(MakeDelta(QByteArray::fromStdString(GetPiece(Number, Sent++))));
		if (Sent == PiecesOfAnAnswer)
		{
			Asker.Send(StopChunk + EndMark);
			Pieces.stop();
		}
	}

	void HandleMessage(const UMessage& Message)
	{
		const bool bUser = Message.Role == EChatRole::User;
		Say(bUser ? FString::Printf(TEXT("user %d"), Number) : FString::Printf(TEXT("answer %d %d"), Number, Shown));
	}

	void HandleChunk(const FString& Chunk)
	{
		Shown += Chunk.Len();
		Say(FString::Printf(TEXT("chunk %d %d %lld"), Number, Shown, FStreamingProgram::GetMilliseconds()));
	}

	FScriptedServer Server;
	TObjectPtr<UHttpChatService> Service = NewObject<UHttpChatService>();
	QTimer Frames;
	QElapsedTimer SinceLastFrame;
	QTimer Pieces;
	FExchange Asker;
	int32 Number;
	int32 Sent = 0;
	int32 Shown = 0;
};
} // namespace

int FStreamingProgram::Run(const FString& StoreFile, int32 FirstNumber)
{
	const FConversing Conversing(StoreFile, FirstNumber);
	return QCoreApplication::exec();
}

FString FStreamingProgram::GetWholeAnswer(int32 Number)
{
	std::string Whole;
	for (int32 Index = 0; Index < PiecesOfAnAnswer; ++Index)
	{
		Whole += GetPiece(Number, Index);
	}
	return FString(Whole.c_str());
}

int64 FStreamingProgram::GetMilliseconds()
{
	return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch()).count();
}
