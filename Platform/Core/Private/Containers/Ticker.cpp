// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Containers/Ticker.h"
#include "Math/UnrealMathUtility.h"

FTSTicker& FTSTicker::GetCoreTicker()
{
	static FTSTicker Ticker;
	return Ticker;
}

FTSTicker::FDelegateHandle FTSTicker::AddTicker(const FTickerDelegate& InDelegate, float InDelay)
{
	Elements.Add({InDelegate, InDelay, InDelay});
	OnTickerAdded.Broadcast();
	return InDelegate.GetHandle();
}

void FTSTicker::RemoveTicker(FDelegateHandle Handle)
{
	for (FElement& Element : GetCoreTicker().Elements)
	{
		if (Element.Delegate.GetHandle() == Handle)
		{
			// Only unbound, since it may be running; the next tick drops it.
			Element.Delegate.Unbind();
		}
	}
}

void FTSTicker::Tick(float DeltaTime)
{
	// Tickers that are added meanwhile lie behind this number.
	const int32 NumToTick = Elements.Num();
	for (int32 Index = 0; Index < NumToTick; ++Index)
	{
		Elements[Index].TimeLeft -= DeltaTime;
		if (Elements[Index].TimeLeft > 0.0f)
		{
			continue;
		}
		const FTickerDelegate Delegate = Elements[Index].Delegate;
		if (!Delegate.IsBound() || !Delegate.Execute(DeltaTime))
		{
			Elements[Index].Delegate.Unbind();
		}
		Elements[Index].TimeLeft = Elements[Index].Delay;
	}
	Elements.RemoveAll([](const FElement& Element) { return !Element.Delegate.IsBound(); });
}

TOptional<float> FTSTicker::GetTimeToNextTick() const
{
	TOptional<float> Result;
	for (const FElement& Element : Elements)
	{
		if (Element.Delegate.IsBound())
		{
			Result = FMath::Min(Result.Get(Element.TimeLeft), FMath::Max(Element.TimeLeft, 0.0f));
		}
	}
	return Result;
}
