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

TEST(FrameLoop, NothingRunsWhileNothingChangesAndAChangeIsOnePaintedFrame)
{
	const TSharedRef<SProbe> Probe = SNew(SProbe);
	FTestHost Host(Probe);
	GetLoop().ResetStatistics();
	EXPECT_EQ(CountRunningTimers(), 0);
	QCoreApplication::processEvents();
	EXPECT_EQ(GetLoop().GetStatistics().NumFrames, 0);

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

TEST(FrameLoop, TickersAndTimersWakeTheSleepingLoop)
{
	int Calls = 0;
	FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateLambda([&Calls](float) { return ++Calls < 3; }));
	RunFrames();
	EXPECT_EQ(Calls, 3);

	FTimerHandle Handle;
	GEditor->GetTimerManager()->SetTimer(Handle, FTimerDelegate::CreateLambda([&Calls] { ++Calls; }), 0.03f);
	EXPECT_TRUE(GetLoop().IsIdle()) << "no frame runs before the timer is due";
	EXPECT_EQ(CountRunningTimers(), 1);
	for (int Round = 0; Round < 200 && Calls == 3; ++Round)
	{
		QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
	}
	EXPECT_EQ(Calls, 4);
	RunFrames();
	EXPECT_EQ(CountRunningTimers(), 0);
}

TEST(Countdown, ATimerCountsFromTheEventThatSetItAndCatchingUpRunsNothing)
{
	FTimerManager Timers;
	FCountdown Countdown([&](float Step) { Timers.Tick(Step); }, [&] { return Timers.GetTimeToNextTimer(); });
	FTimerHandle Handle;
	int32 Calls = 0;
	const auto Set = [&](float Seconds)
	{
		Timers.SetTimer(Handle, FTimerDelegate::CreateLambda([&Calls] { ++Calls; }), Seconds);
	};
	Countdown.Run(1.0);
	// Half a minute without a frame; then an event sets a timer.
	Countdown.CatchUp(31.0);
	Set(10.0f);
	Countdown.Run(31.016);
	Countdown.Run(40.9);
	EXPECT_EQ(Calls, 0);
	Countdown.Run(41.1);
	EXPECT_EQ(Calls, 1);

	Set(5.0f);
	Countdown.CatchUp(100.0);
	EXPECT_EQ(Calls, 1);
	Countdown.Run(100.0);
	EXPECT_EQ(Calls, 2);
}
