// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// Those who wait for an answer. Each owns itself by the handle that it got, and waits no longer once that is released.
template <class WaiterType>
class TWaitingList
{
public:
	TSharedPtr<void> Add(WaiterType Waiter)
	{
		const TSharedRef<WaiterType> Handle = MakeShared<WaiterType>(::MoveTemp(Waiter));
		Waiters.Add(Handle);
		return Handle;
	}

	// Lets everybody go for whom the answer, which may do anything to this list, returns true.
	template <class AnswerType>
	void Answer(const AnswerType& Answer)
	{
		const TArray<TWeakPtr<WaiterType>> Asking = ::MoveTemp(Waiters);
		Waiters.Reset();
		for (const TWeakPtr<WaiterType>& Weak : Asking)
		{
			const TSharedPtr<WaiterType> Waiter = Weak.Pin();
			if (Waiter && !Answer(*Waiter))
			{
				Waiters.Add(Weak);
			}
		}
	}

private:
	TArray<TWeakPtr<WaiterType>> Waiters;
};
