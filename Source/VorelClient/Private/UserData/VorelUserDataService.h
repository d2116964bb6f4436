// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/Ticker.h"
#include "UserData/UserDataFetch.h"
#include "UserDataService.h"

class UAuthenticationService;

// Asks the service about the user. Every answer is told in a frame. A failure is told once, and then tried again at growing intervals until
// it succeeds, is asked for anew, or has been tried often enough. What a session asked for is dropped with it, and the user's data are
// told to be nobody's: an empty name.
class UVorelUserDataService final : public UUserDataService
{
public:
	~UVorelUserDataService() override;

	// To be called once, before anything else.
	void Initialize(const FUserDataSource& InSource, UAuthenticationService& InAuthentication);

	// Nothing is told any more.
	void Shutdown();

	// Joined with one that is under way; ignored while nobody is signed in.
	void GetUserData() override;

	// The credits may have changed. An answer that is under way may not know it yet, so it is followed by another one.
	void AskAgain();

private:
	void Ask();
	void HandleDone(const TOptional<FVorelUserData>& Data, const FString& Problem);
	bool Tell(float DeltaTime);
	void TellFailure();
	bool Retry(float DeltaTime);
	void HandleAuthenticationStateChanged();
	void HandleReactivated();
	void Forget();

	FUserDataSource Source;
	TObjectPtr<UAuthenticationService> Authentication;
	TUniquePtr<FUserDataFetch> Fetch;
	// Unset: it failed.
	TOptional<FVorelUserData> Answer;
	FTSTicker::FDelegateHandle Frame;
	FTSTicker::FDelegateHandle NextTry;
	int32 Tries = 0;
	bool bFailureTold = false;
	bool bAskOnceMore = false;
};
