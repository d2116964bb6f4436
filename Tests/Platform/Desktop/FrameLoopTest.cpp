// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Containers/Ticker.h"
#include "Editor.h"
#include "HostSupport.h"
#include "TimerManager.h"

static FFrameLoop& GetLoop()
{
	return FDesktopApplication::Get().GetFrameLoop();
}

static int CountRunningTimers()
{
	int Running = 0;
	for (const QTimer* Timer : GetLoop().findChildren<QTimer*>())
	{
		Running += Timer->isActive() ? 1 : 0;
	}
	return Running;
}

TEST(FrameLoop, NothingRunsWhileNothingChanges)
{
	const TSharedRef<SProbe> Probe = SNew(SProbe);
	FTestHost Host(Probe);
	RunFrames();
	EXPECT_EQ(CountRunningTimers(), 0);
	EXPECT_TRUE(FDesktopApplication::Get().IsIdle());
	const int64 Frames = GetLoop().GetStatistics().NumFrames;
	QCoreApplication::processEvents();
	EXPECT_EQ(GetLoop().GetStatistics().NumFrames, Frames);
}

TEST(FrameLoop, AChangeIsOnePaintedFrame)
{
	const TSharedRef<SProbe> Probe = SNew(SProbe);
	FTestHost Host(Probe);
	GetLoop().ResetStatistics();
	Probe->SetColor(FLinearColor::Red);
	Probe->SetColor(FLinearColor::Green);
	EXPECT_FALSE(FDesktopApplication::Get().IsIdle());
	RunFrames();
	EXPECT_EQ(GetLoop().GetStatistics().NumFrames, 1);
	EXPECT_EQ(GetLoop().GetStatistics().NumPaintedFrames, 1);
	EXPECT_GT(GetLoop().GetStatistics().LongestFrameInMilliseconds, 0.0);
	EXPECT_EQ(Host.Widget.GetPicture().pixelColor(50, 25), QColor(0, 255, 0));

	GetLoop().RequestFrame();
	GetLoop().RequestFrame();
	RunFrames();
	EXPECT_EQ(GetLoop().GetStatistics().NumFrames, 2);
	EXPECT_EQ(GetLoop().GetStatistics().NumPaintedFrames, 1) << "nothing was different after the second";
}

TEST(FrameLoop, ATickerAsksForTheFrameItRunsIn)
{
	int Calls = 0;
	FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateLambda([&Calls](float) { return ++Calls < 3; }));
	EXPECT_FALSE(GetLoop().IsIdle());
	RunFrames();
	EXPECT_EQ(Calls, 3);
}

TEST(FrameLoop, ATimerWakesTheSleepingLoop)
{
	RunFrames();
	bool bCalled = false;
	FTimerHandle Handle;
	GEditor->GetTimerManager()->SetTimer(Handle, FTimerDelegate::CreateLambda([&bCalled] { bCalled = true; }), 0.03f);
	EXPECT_TRUE(GetLoop().IsIdle()) << "no frame runs before the timer is due";
	EXPECT_EQ(CountRunningTimers(), 1);
	for (int Round = 0; Round < 200 && !bCalled; ++Round)
	{
		QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
	}
	EXPECT_TRUE(bCalled);
	RunFrames();
	EXPECT_EQ(CountRunningTimers(), 0);
}

namespace
{
/** A timer manager and the clock that drives it. */
struct FTimersOfCountdown
{
	FTimerManager Timers;
	FCountdown Countdown{[this](float Step) { Timers.Tick(Step); },
		[this]
		{
			return Timers.GetTimeToNextTimer();
		}};
	FTimerHandle Handle;
	int32 Calls = 0;

	void Set(float Seconds)
	{
		Timers.SetTimer(Handle, FTimerDelegate::CreateLambda([this] { ++Calls; }), Seconds);
	}
};
} // namespace

TEST(Countdown, ATimerCountsFromTheEventThatSetIt)
{
	FTimersOfCountdown Clock;
	Clock.Countdown.Run(1.0);
	// Half a minute without a frame; then an event sets a timer.
	Clock.Countdown.CatchUp(31.0);
	Clock.Set(10.0f);
	Clock.Countdown.Run(31.016);
	Clock.Countdown.Run(40.9);
	EXPECT_EQ(Clock.Calls, 0);
	Clock.Countdown.Run(41.1);
	EXPECT_EQ(Clock.Calls, 1);
}

TEST(Countdown, CatchingUpRunsNothing)
{
	FTimersOfCountdown Clock;
	Clock.Countdown.Run(1.0);
	Clock.Set(5.0f);
	Clock.Countdown.CatchUp(60.0);
	EXPECT_EQ(Clock.Calls, 0);
	EXPECT_NEAR(Clock.Timers.GetTimerRemaining(Clock.Handle), 0.001f, 0.0005f);
	Clock.Countdown.Run(60.0);
	EXPECT_EQ(Clock.Calls, 1);
}
