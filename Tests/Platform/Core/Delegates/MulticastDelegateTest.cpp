// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/Printers.h"

#include <gtest/gtest.h>

DECLARE_MULTICAST_DELEGATE_OneParam(FOnEvent, const FString&);

namespace
{
struct FHearer : TSharedFromThis<FHearer>
{
	void OnEvent(const FString& Text) { Heard += Text; }

	FString Heard;
};
} // namespace

TEST(MulticastDelegateTest, RemovesByHandleAndByObject)
{
	const TSharedRef<FHearer> Hearer = MakeShared<FHearer>();
	FOnEvent Event;
	const FDelegateHandle Handle = Event.AddSP(Hearer, &FHearer::OnEvent);
	EXPECT_TRUE(Event.Remove(Handle));
	EXPECT_FALSE(Event.Remove(Handle));

	Event.AddSP(Hearer, &FHearer::OnEvent);
	Event.AddRaw(&Hearer.Get(), &FHearer::OnEvent);
	Event.AddLambda([](const FString&) {});
	EXPECT_EQ(Event.RemoveAll(&Hearer.Get()), 2);
	Event.Broadcast(TEXT("x"));
	EXPECT_TEXT(Hearer->Heard, TEXT(""));
	EXPECT_TRUE(Event.IsBound());
	Event.Clear();
	EXPECT_FALSE(Event.IsBound());
}

// During a broadcast each handler may add handlers, which wait, and remove others, which do not run any more.
TEST(MulticastDelegateTest, SurvivesChangesAndDyingObjectsWhileItBroadcasts)
{
	FSimpleMulticastDelegate Event;
	FString Log;
	FDelegateHandle Victim = Event.AddLambda([&] { Log += TEXT("victim "); });
	Event.AddLambda(
		[&]
		{
			Log += TEXT("killer ");
			Event.Remove(Victim);
			for (int32 Index = 0; Index < 50; ++Index)
			{
				Event.AddLambda([&] { Log += TEXT("+"); });
			}
		});
	Event.Broadcast();
	EXPECT_TEXT(Log, TEXT("killer "));
	Log.Reset();
	Event.Broadcast();
	EXPECT_EQ(Log, FString::ChrN(50, TEXT('+')) + TEXT("killer "));

	TSharedPtr<FHearer> Dying = MakeShared<FHearer>();
	FOnEvent Deadly;
	Deadly.AddSP(Dying.Get(), &FHearer::OnEvent);
	Deadly.AddLambda([&](const FString&) { Dying.Reset(); });
	Deadly.Broadcast(TEXT("x"));
	EXPECT_FALSE(Dying.IsValid());
}

TEST(MulticastDelegateTest, MayDieAndBroadcastInsideItself)
{
	TUniquePtr<FSimpleMulticastDelegate> Event = MakeUnique<FSimpleMulticastDelegate>();
	int32 NumCalls = 0;
	FDelegateHandle Once;
	Once = Event->AddLambda([&] { Event->Remove(Once); });
	Event->AddLambda(
		[&]
		{
			if (++NumCalls < 3)
			{
				Event->Broadcast();
			}
			Event.Reset();
		});
	Event->Broadcast();
	EXPECT_EQ(NumCalls, 3);
}
