// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Account/NextTurn.h"

// Held by the one program that changes the stored tokens, in an empty file of the data folder.
class FRefreshLock final
{
public:
	// bTaken false: another program holds it for longer than that, or the folder can't be written to. Without a folder it counts as taken.
	// Never called before this returns, nor once the lock is gone, which lets others take it.
	FRefreshLock(const FString& DataFolder, double Seconds, TFunction<void(bool bTaken)> InOnEnded);
	~FRefreshLock();
	FRefreshLock(const FRefreshLock&) = delete;
	FRefreshLock& operator=(const FRefreshLock&) = delete;

private:
	void Try();
	void End(bool bTaken);

	TFunction<void(bool)> OnEnded;
	const bool bNeeded;
	const int Descriptor;
	double SecondsLeft;
	FNextTurn NextTurn;
};
