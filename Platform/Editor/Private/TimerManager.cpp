// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TimerManager.h"

// Frame times are floats, and their sum need not reach the delay to the last digit.
static constexpr double Tolerance = 1.e-4;

void FTimerManager::SetTimer(FTimerHandle& InOutHandle, const FTimerDelegate& InDelegate, float InRate, bool bInLoop, float InFirstDelay)
{
	ClearTimer(InOutHandle);
	// Written so that a rate that is no number counts as none.
	if (!(InRate > 0.0f))
	{
		return;
	}
	InOutHandle.Handle = ++LastHandle;
	const float Delay = InFirstDelay >= 0.0f ? InFirstDelay : InRate;
	Timers.Add({InOutHandle.Handle, InDelegate, InternalTime + Delay, InRate, bInLoop});
	OnTimerSet.Broadcast();
}

void FTimerManager::ClearTimer(FTimerHandle& InHandle)
{
	Timers.RemoveAll([&InHandle](const FTimerData& Timer) { return Timer.Handle == InHandle.Handle; });
	InHandle.Invalidate();
}

void FTimerManager::Tick(float DeltaTime)
{
	InternalTime += DeltaTime;
	const uint64 FirstNewHandle = LastHandle + 1;
	while (FTimerData* Due = FindEarliestDue(FirstNewHandle))
	{
		Run(*Due);
	}
}

TOptional<float> FTimerManager::GetTimeToNextTimer() const
{
	TOptional<float> Result;
	for (const FTimerData& Timer : Timers)
	{
		const float Remaining = FMath::Max(static_cast<float>(Timer.ExpireTime - InternalTime), 0.0f);
		Result = FMath::Min(Result.Get(Remaining), Remaining);
	}
	return Result;
}

const FTimerManager::FTimerData* FTimerManager::FindTimer(const FTimerHandle& InHandle) const
{
	return Timers.FindByPredicate([&InHandle](const FTimerData& Timer) { return Timer.Handle == InHandle.Handle; });
}

FTimerManager::FTimerData* FTimerManager::FindEarliestDue(uint64 FirstNewHandle)
{
	FTimerData* Earliest = nullptr;
	for (FTimerData& Timer : Timers)
	{
		const bool bDue = Timer.ExpireTime <= InternalTime + Tolerance && Timer.Handle < FirstNewHandle;
		if (bDue && (!Earliest || Timer.ExpireTime < Earliest->ExpireTime))
		{
			Earliest = &Timer;
		}
	}
	return Earliest;
}

void FTimerManager::Run(FTimerData& Timer)
{
	// The handler may set and clear timers, this one too.
	const FTimerDelegate Delegate = Timer.Delegate;
	if (Timer.bLoop && Delegate.IsBound())
	{
		Timer.ExpireTime += Timer.Rate;
	}
	else
	{
		Timers.RemoveAt(static_cast<int32>(&Timer - Timers.GetData()));
	}
	Delegate.ExecuteIfBound();
}
