// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Containers/Ticker.h"
#include "Support/Printers.h"

#include <gtest/gtest.h>

static FTSTicker& GetTicker()
{
	return FTSTicker::GetCoreTicker();
}

TEST(TickerTest, RunsInTheNextFrameAndAsksForIt)
{
	int32 NumAsked = 0;
	const FDelegateHandle Listener = GetTicker().OnTickerAdded.AddLambda([&] { ++NumAsked; });
	FString Log;
	const auto AddInner = [&]
	{
		GetTicker().AddTicker(FTickerDelegate::CreateLambda(
			[&](float)
			{
				Log += TEXT("inner ");
				return false;
			}));
	};
	GetTicker().AddTicker(FTickerDelegate::CreateLambda(
		[&](float DeltaTime)
		{
			Log += FString::Printf(TEXT("outer %.1f "), DeltaTime);
			AddInner();
			return false;
		}));
	EXPECT_EQ(GetTicker().GetTimeToNextTick().GetValue(), 0.0f);
	GetTicker().Tick(0.5f);
	EXPECT_TEXT(Log, TEXT("outer 0.5 "));
	EXPECT_EQ(NumAsked, 2);
	GetTicker().Tick(0.5f);
	GetTicker().Tick(0.5f);
	EXPECT_TEXT(Log, TEXT("outer 0.5 inner "));
	EXPECT_FALSE(GetTicker().GetTimeToNextTick().IsSet());
	GetTicker().OnTickerAdded.Remove(Listener);
}

TEST(TickerTest, RunsOncePerDelayUntilItHasEnoughOrIsRemovedAlsoByItself)
{
	int32 NumRuns = 0;
	GetTicker().AddTicker(FTickerDelegate::CreateLambda([&](float) { return ++NumRuns < 2; }), 1.0f);
	GetTicker().Tick(0.6f);
	EXPECT_EQ(NumRuns, 0);
	EXPECT_NEAR(GetTicker().GetTimeToNextTick().GetValue(), 0.4f, 1e-5f);
	for (const auto& [Seconds, Expected] : {TPair<float, int32>(0.5f, 1), {0.5f, 1}, {0.6f, 2}, {5.0f, 2}})
	{
		GetTicker().Tick(Seconds);
		EXPECT_EQ(NumRuns, Expected);
	}

	FDelegateHandle Self;
	const auto Run = [&](float)
	{
		++NumRuns;
		FTSTicker::RemoveTicker(Self);
		return true;
	};
	Self = GetTicker().AddTicker(FTickerDelegate::CreateLambda(Run));
	FTSTicker::RemoveTicker(GetTicker().AddTicker(FTickerDelegate::CreateLambda(Run)));
	GetTicker().Tick(0.1f);
	GetTicker().Tick(0.1f);
	EXPECT_EQ(NumRuns, 3);
}
