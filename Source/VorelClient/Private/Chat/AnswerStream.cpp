// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/AnswerStream.h"

#include "Chat/AnswerNote.h"

FAnswerStream::FAnswerStream(FAssistantEndpoint& Endpoint, const FRequestLimits& Limits)
	: Call(Endpoint, Limits)
{
	Call.OnText = [this](const FString& Text)
	{
		Answer += Text;
		Waiting += Text;
		AskForFrame();
	};
	Call.OnEnded = [this](const FAnswerEnd& InEnd)
	{
		// An interrupted answer is shown anew, with its note.
		Waiting += InEnd.Kind == EAnswerEnd::Failed ? FString() : MakeAnswerNote(Answer, InEnd.Kind);
		End = InEnd;
		AskForFrame();
	};
}

FAnswerStream::~FAnswerStream()
{
	FTSTicker::RemoveTicker(Frame);
}

void FAnswerStream::Start(const TArray<FChatMessage>& Messages, EChatMode Mode)
{
	Call.Start(Messages, Mode);
}

void FAnswerStream::Fail(const FText& Failure)
{
	Call.OnEnded({EAnswerEnd::Failed, Failure});
}

void FAnswerStream::Cancel()
{
	bCancelled = true;
	FTSTicker::RemoveTicker(Frame);
}

void FAnswerStream::AskForFrame()
{
	if (!Frame.IsValid() && !bCancelled)
	{
		Frame = FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateSP(this, &FAnswerStream::HandleFrame));
	}
}

bool FAnswerStream::HandleFrame(float DeltaTime)
{
	const TSharedRef<FAnswerStream> KeptAlive = AsShared();
	Frame.Reset();
	const FString Text = ::MoveTemp(Waiting);
	Waiting.Reset();
	if (!Text.IsEmpty())
	{
		OnText(Text);
	}
	if (End && !bCancelled)
	{
		OnEnded(*End);
	}
	return false;
}
