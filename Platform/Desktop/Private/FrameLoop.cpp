// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "FrameLoop.h"

#include "Containers/Ticker.h"
#include "Editor.h"
#include "Framework/Application/SlateApplication.h"
#include "Math/UnrealMathUtility.h"

#include <QCoreApplication>
#include <QtMath>

// Shorter steps are left to the next one.
static constexpr double LeastStepInSeconds = 0.001;

FCountdown::FCountdown(TFunction<void(float)> InTick, TFunction<TOptional<float>()> InGetTimeToNext)
	: Tick(::MoveTemp(InTick))
	, TimeToNext(::MoveTemp(InGetTimeToNext))
{
}

void FCountdown::CatchUp(double Now)
{
	double Step = Now - Time;
	if (Step < LeastStepInSeconds)
	{
		return;
	}
	if (const TOptional<float> Next = TimeToNext())
	{
		Step = FMath::Min(Step, *Next - LeastStepInSeconds);
	}
	if (Step >= LeastStepInSeconds)
	{
		Tick(static_cast<float>(Step));
		Time += Step;
	}
}

void FCountdown::Run(double Now)
{
	const double Step = Now - Time;
	Time = Now;
	Tick(static_cast<float>(Step));
}

FFrameLoop::FFrameLoop()
{
	Clock.start();
	Countdowns.Add(FCountdown(
		[](float Step) { FTSTicker::GetCoreTicker().Tick(Step); }, [] { return FTSTicker::GetCoreTicker().GetTimeToNextTick(); }));
	Countdowns.Add(FCountdown(
		[](float Step)
		{
			if (GEditor)
			{
				GEditor->GetTimerManager()->Tick(Step);
			}
		},
		[] { return GEditor ? GEditor->GetTimerManager()->GetTimeToNextTimer() : TOptional<float>(); }));
	for (QTimer* Timer : {&FrameTimer, &DeadlineTimer})
	{
		Timer->setSingleShot(true);
		Timer->setTimerType(Qt::PreciseTimer);
	}
	connect(&FrameTimer, &QTimer::timeout, this, &FFrameLoop::RunFrame);
	connect(&DeadlineTimer, &QTimer::timeout, this, &FFrameLoop::RequestFrame);
	TickerAddedHandle = FTSTicker::GetCoreTicker().OnTickerAdded.AddRaw(this, &FFrameLoop::ScheduleTimers);
	if (GEditor)
	{
		TimerManager = GEditor->GetTimerManager();
		TimerSetHandle = TimerManager->OnTimerSet.AddRaw(this, &FFrameLoop::ScheduleTimers);
	}
	QCoreApplication::instance()->installEventFilter(this);
}

FFrameLoop::~FFrameLoop()
{
	QCoreApplication::instance()->removeEventFilter(this);
	FTSTicker::GetCoreTicker().OnTickerAdded.Remove(TickerAddedHandle);
	if (TimerManager)
	{
		TimerManager->OnTimerSet.Remove(TimerSetHandle);
	}
}

void FFrameLoop::RequestFrame()
{
	if (bRequested)
	{
		return;
	}
	bRequested = true;
	const double SinceLast = (GetNow() - FrameTime) * 1000.0;
	FrameTimer.start(qCeil(FMath::Clamp(FrameInMilliseconds - SinceLast, 0.0, 1.0 * FrameInMilliseconds)));
}

bool FFrameLoop::eventFilter(QObject*, QEvent*)
{
	if (!bInFrame)
	{
		const double Now = GetNow();
		for (FCountdown& Countdown : Countdowns)
		{
			Countdown.CatchUp(Now);
		}
	}
	return false;
}

void FFrameLoop::RunFrame()
{
	const double Start = GetNow();
	const double Step = Start - FrameTime;
	FrameTime = Start;
	bRequested = false;
	bInFrame = true;
	bPainted = false;
	for (FCountdown& Countdown : Countdowns)
	{
		Countdown.Run(Start);
	}
	FSlateApplication::Get().Tick(static_cast<float>(Step));
	OnShowFrame.Broadcast();
	bInFrame = false;

	Statistics.NumFrames += 1;
	Statistics.NumPaintedFrames += bPainted ? 1 : 0;
	Statistics.LongestFrameInMilliseconds = FMath::Max(Statistics.LongestFrameInMilliseconds, (GetNow() - Start) * 1000.0);
	ScheduleTimers();
}

void FFrameLoop::ScheduleTimers()
{
	if (bInFrame || bRequested)
	{
		return;
	}
	TOptional<float> Next;
	for (const FCountdown& Countdown : Countdowns)
	{
		const TOptional<float> Time = Countdown.GetTimeToNext();
		if (Time && (!Next || *Time < *Next))
		{
			Next = Time;
		}
	}
	if (!Next)
	{
		DeadlineTimer.stop();
	}
	else if (*Next <= 0.0f)
	{
		RequestFrame();
	}
	else
	{
		DeadlineTimer.start(qCeil(*Next * 1000.0));
	}
}
