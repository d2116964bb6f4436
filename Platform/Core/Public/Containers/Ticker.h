// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/Array.h"
#include "Delegates/Delegate.h"
#include "Misc/Optional.h"

// Calls back in seconds; true asks to be called again.
DECLARE_DELEGATE_RetVal_OneParam(bool, FTickerDelegate, float /* DeltaTime */);

// Runs what was asked to run in a later frame. Time comes from the host's frame loop.
class FTSTicker
{
public:
	using FDelegateHandle = ::FDelegateHandle;

	static FTSTicker& GetCoreTicker();

	// Without delay it runs in the next frame, never in this one; else once per delay.
	FDelegateHandle AddTicker(const FTickerDelegate& InDelegate, float InDelay = 0.0f);
	static void RemoveTicker(FDelegateHandle Handle);

	void Tick(float DeltaTime);

	// Seconds until something is due; unset where nothing is.
	TOptional<float> GetTimeToNextTick() const;

	// The host's frame loop listens here.
	FSimpleMulticastDelegate OnTickerAdded;

private:
	struct FElement
	{
		FTickerDelegate Delegate;
		float Delay;
		float TimeLeft;
	};

	bool TickElement(FElement& Element, float DeltaTime);

	TArray<FElement> Elements;
};
