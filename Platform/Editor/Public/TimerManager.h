// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

DECLARE_DELEGATE(FTimerDelegate);

// Names one timer; not valid until one is set, and again once it is cleared.
struct FTimerHandle
{
	bool IsValid() const { return Handle != 0; }
	void Invalidate() { Handle = 0; }

	friend bool operator==(const FTimerHandle&, const FTimerHandle&) = default;

private:
	friend class FTimerManager;

	uint64 Handle = 0;
};

// Calls back after a time. Time comes from the host's frame loop; all times are seconds.
class FTimerManager
{
public:
	// Takes the place of the timer that this handle names. A rate of 0 or below only clears that one. FirstDelay below 0 stands for the
	// rate.
	void SetTimer(
		FTimerHandle& InOutHandle, const FTimerDelegate& InDelegate, float InRate, bool bInLoop = false, float InFirstDelay = -1.0f);

	void ClearTimer(FTimerHandle& InHandle);

	bool TimerExists(const FTimerHandle& InHandle) const { return FindTimer(InHandle) != nullptr; }

	// Runs what is due, the earliest first. Timers that are set meanwhile wait for the next tick.
	void Tick(float DeltaTime);

	// Unset where no timer runs.
	TOptional<float> GetTimeToNextTimer() const;

	// The host's frame loop listens here.
	FSimpleMulticastDelegate OnTimerSet;

private:
	struct FTimerData
	{
		uint64 Handle;
		FTimerDelegate Delegate;
		double ExpireTime;
		float Rate;
		bool bLoop;
	};

	const FTimerData* FindTimer(const FTimerHandle& InHandle) const;
	FTimerData* FindEarliestDue(uint64 FirstNewHandle);
	void Run(FTimerData& Timer);

	TArray<FTimerData> Timers;
	double InternalTime = 0.0;
	uint64 LastHandle = 0;
};
