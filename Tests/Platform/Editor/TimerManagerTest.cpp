// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Editor.h"
#include "Support/Printers.h"

#include <gtest/gtest.h>

class TimerManagerTest : public testing::Test
{
protected:
	FTimerDelegate Note(const TCHAR* Text)
	{
		return FTimerDelegate::CreateLambda([this, Text] { Log += Text; });
	}

	FTimerManager Timers;
	FTimerHandle Handle;
	FTimerHandle Other;
	FString Log;
};

TEST_F(TimerManagerTest, FiresOnceAfterItsDelayHoweverManyFramesItTakes)
{
	Timers.SetTimer(Handle, Note(TEXT("x")), 10.0f);
	for (int32 Frame = 0; Frame < 100; ++Frame)
	{
		EXPECT_TEXT(Log, TEXT(""));
		EXPECT_NEAR(Timers.GetTimeToNextTimer().GetValue(), 10.0f - 0.1f * static_cast<float>(Frame), 1e-4f);
		Timers.Tick(0.1f);
	}
	Timers.Tick(100.0f);
	EXPECT_TEXT(Log, TEXT("x"));
	EXPECT_FALSE(Timers.GetTimeToNextTimer().IsSet());

	Timers.SetTimer(Handle, Note(TEXT("y")), 1.0f);
	Timers.SetTimer(Handle, Note(TEXT("z")), 0.0f);
	EXPECT_FALSE(Handle.IsValid()) << "no delay clears it";
	Timers.Tick(5.0f);
	EXPECT_TEXT(Log, TEXT("x"));
}

TEST_F(TimerManagerTest, RunsWhatIsDueInOrderOfTime)
{
	FTimerHandle Looping;
	Timers.SetTimer(Handle, Note(TEXT("late ")), 3.0f);
	Timers.SetTimer(Other, Note(TEXT("early ")), 1.0f);
	Timers.SetTimer(Looping, Note(TEXT("loop ")), 2.0f, true, 0.5f);
	Timers.Tick(3.0f);
	EXPECT_TEXT(Log, TEXT("loop early loop late "));
	EXPECT_TRUE(Timers.TimerExists(Looping));
}

TEST_F(TimerManagerTest, HandlersMaySetAndClearTimers)
{
	const auto Run = [this]
	{
		Log += TEXT("a");
		Timers.ClearTimer(Other);
		Timers.SetTimer(Handle, Note(TEXT("b")), 1.0f, false, 0.0f);
	};
	Timers.SetTimer(Handle, FTimerDelegate::CreateLambda(Run), 1.0f);
	Timers.SetTimer(Other, Note(TEXT("victim")), 1.5f);
	Timers.Tick(2.0f);
	EXPECT_TEXT(Log, TEXT("a"));
	Timers.Tick(0.0f);
	EXPECT_TEXT(Log, TEXT("ab"));
}

TEST_F(TimerManagerTest, SkipsObjectsThatAreGoneAndTellsTheHost)
{
	struct FOwner : TSharedFromThis<FOwner>
	{
		void Fail() { ADD_FAILURE() << "The timer of a dead object ran"; }
	};
	int32 NumSet = 0;
	Timers.OnTimerSet.AddLambda([&NumSet] { ++NumSet; });
	Timers.SetTimer(Handle, FTimerDelegate::CreateSP(&MakeShared<FOwner>().Get(), &FOwner::Fail), 1.0f, true);
	EXPECT_EQ(NumSet, 1);
	Timers.Tick(1.0f);
	EXPECT_FALSE(Timers.TimerExists(Handle));
}
