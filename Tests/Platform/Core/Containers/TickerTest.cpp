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
	EXPECT_FALSE(GetTicker().GetTimeToNextTick().IsSet());

	FString Log;
	GetTicker().AddTicker(FTickerDelegate::CreateLambda(
		[&](float DeltaTime)
		{
			Log += FString::Printf(TEXT("outer %.1f "), DeltaTime);
			GetTicker().AddTicker(FTickerDelegate::CreateLambda(
				[&](float)
				{
					Log += TEXT("inner ");
					return false;
				}));
			return false;
		}));
	EXPECT_EQ(NumAsked, 1);
	EXPECT_EQ(GetTicker().GetTimeToNextTick().GetValue(), 0.0f);
	GetTicker().Tick(0.5f);
	EXPECT_TEXT(Log, TEXT("outer 0.5 "));
	EXPECT_EQ(NumAsked, 2);
	GetTicker().Tick(0.5f);
	EXPECT_TEXT(Log, TEXT("outer 0.5 inner "));
	GetTicker().Tick(0.5f);
	EXPECT_TEXT(Log, TEXT("outer 0.5 inner "));
	EXPECT_FALSE(GetTicker().GetTimeToNextTick().IsSet());
	GetTicker().OnTickerAdded.Remove(Listener);
}

TEST(TickerTest, RunsOncePerDelayUntilItHasEnough)
{
	int32 NumRuns = 0;
	GetTicker().AddTicker(FTickerDelegate::CreateLambda([&](float) { return ++NumRuns < 2; }), 1.0f);
	GetTicker().Tick(0.6f);
	EXPECT_EQ(NumRuns, 0);
	EXPECT_NEAR(GetTicker().GetTimeToNextTick().GetValue(), 0.4f, 1e-5f);
	GetTicker().Tick(0.6f);
	EXPECT_EQ(NumRuns, 1);
	GetTicker().Tick(1.0f);
	EXPECT_EQ(NumRuns, 2);
	GetTicker().Tick(5.0f);
	EXPECT_EQ(NumRuns, 2);
}

TEST(TickerTest, CanBeRemovedAlsoByItself)
{
	int32 NumRuns = 0;
	FDelegateHandle Self;
	Self = GetTicker().AddTicker(FTickerDelegate::CreateLambda(
		[&](float)
		{
			++NumRuns;
			FTSTicker::RemoveTicker(Self);
			return true;
		}));
	const FDelegateHandle Other = GetTicker().AddTicker(FTickerDelegate::CreateLambda(
		[&](float)
		{
			ADD_FAILURE() << "A removed ticker ran";
			return true;
		}));
	FTSTicker::RemoveTicker(Other);
	GetTicker().Tick(0.1f);
	GetTicker().Tick(0.1f);
	EXPECT_EQ(NumRuns, 1);
	EXPECT_FALSE(GetTicker().GetTimeToNextTick().IsSet());
}
