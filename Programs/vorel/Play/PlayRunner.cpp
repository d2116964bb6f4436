// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Play/PlayRunner.h"

#include "Play/PlayStage.h"

static constexpr int PollInMilliseconds = 5;

FPlayRunner::FPlayRunner(IPlayStage& InStage, FPlayScript InScript, FOnEnded InOnEnded)
	: Stage(InStage)
	, Script(MoveTemp(InScript))
	, OnEnded(MoveTemp(InOnEnded))
{
	Timer.setInterval(PollInMilliseconds);
	connect(&Timer, &QTimer::timeout, this, &FPlayRunner::Poll);
}

void FPlayRunner::Start()
{
	BeginStep();
	Timer.start();
}

void FPlayRunner::BeginStep()
{
	bStepBegan = false;
	FramesBefore = Stage.GetNumFrames();
}

// While something moves, more frames are asked for without end: then these must do.
bool FPlayRunner::IsSettled() const
{
	constexpr int64 EnoughFrames = 3;
	return Stage.IsPainted() || Stage.GetNumFrames() >= FramesBefore + EnoughFrames;
}

void FPlayRunner::Poll()
{
	if (Next == Script.Lines.Num())
	{
		End(FString());
		return;
	}
	if (!bStepBegan && !IsSettled())
	{
		return;
	}
	if (!bStepBegan)
	{
		bStepBegan = true;
		StepClock.start();
	}
	const FPlayLine& Line = Script.Lines[Next];
	const FPlayResult Result = Line.Step(Stage, StepClock.nsecsElapsed() * 1.0e-9);
	if (Result.State == FPlayResult::EState::Failed)
	{
		End(FString::Printf(TEXT("%s:%d: %s"), *Script.File, Line.Number, *Result.Problem));
	}
	else if (Result.State == FPlayResult::EState::Done)
	{
		++Next;
		BeginStep();
	}
}

void FPlayRunner::End(const FString& Problem)
{
	Timer.stop();
	OnEnded(Problem);
}
