// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Delegates/Delegate.h"
#include "Misc/Optional.h"
#include "Templates/Function.h"
#include "Templates/SharedPointer.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class FTimerManager;

/** What frames cost, since the start or the last reset. */
struct FFrameStatistics
{
	int64 NumFrames = 0;
	/** Frames after which something on screen was different. */
	int64 NumPaintedFrames = 0;
	double LongestFrameInMilliseconds = 0.0;
};

/**
 * Counts down in steps. It is told of time before each event, so that what an event sets off counts from that event, and not from the last
 * frame, which may lie long before it.
 */
class FCountdown
{
public:
	FCountdown(TFunction<void(float)> InTick, TFunction<TOptional<float>()> InGetTimeToNext);

	/** Lets time pass as far as nothing becomes due by it. */
	void CatchUp(double Now);

	/** Lets time pass and runs what is due. */
	void Run(double Now);

	TOptional<float> GetTimeToNext() const { return TimeToNext(); }

private:
	TFunction<void(float)> Tick;
	TFunction<TOptional<float>()> TimeToNext;
	double Time = 0.0;
};

/** Runs a frame when one was asked for or a timer is due, at most one in 16 ms. In between it sleeps. */
class FFrameLoop : public QObject
{
public:
	static constexpr int FrameInMilliseconds = 16;

	FFrameLoop();
	~FFrameLoop() override;

	/** Within a frame it asks for the next one. */
	void RequestFrame();

	/** Whether nothing is left to do before the next input, network event or timer. */
	bool IsIdle() const { return !bRequested && !bInFrame; }

	const FFrameStatistics& GetStatistics() const { return Statistics; }
	void ResetStatistics() { Statistics = FFrameStatistics(); }

	/** At the end of each frame, for whoever shows what changed in it. */
	FSimpleMulticastDelegate OnShowFrame;

	/** The frame changed something on screen. */
	void NotePainted() { bPainted = true; }

	bool eventFilter(QObject* Receiver, QEvent* Event) override;

private:
	double GetNow() const { return Clock.nsecsElapsed() * 1.0e-9; }
	void RunFrame();
	void ScheduleTimers();

	QElapsedTimer Clock;
	QTimer FrameTimer{this};
	QTimer DeadlineTimer{this};
	TArray<FCountdown> Countdowns;
	FDelegateHandle TickerAddedHandle;
	TSharedPtr<FTimerManager> TimerManager;
	FDelegateHandle TimerSetHandle;
	FFrameStatistics Statistics;
	double FrameTime = 0.0;
	bool bRequested = false;
	bool bInFrame = false;
	bool bPainted = false;
};
