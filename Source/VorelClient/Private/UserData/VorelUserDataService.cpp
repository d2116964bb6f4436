// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "UserData/VorelUserDataService.h"

#include "AuthenticationService.h"
#include "LogVorel.h"
#include "Misc/CoreDelegates.h"
#include <iterator>

// In seconds.
static constexpr float PausesBeforeTries[] = {2.0f, 5.0f, 15.0f, 30.0f, 60.0f};

UVorelUserDataService::~UVorelUserDataService()
{
	Shutdown();
}

void UVorelUserDataService::Initialize(const FUserDataSource& InSource, UAuthenticationService& InAuthentication)
{
	check(!Authentication);
	Source = InSource;
	Authentication = &InAuthentication;
	Authentication->OnAuthenticationStateChanged.AddUObject(this, &UVorelUserDataService::HandleAuthenticationStateChanged);
	FCoreDelegates::ApplicationHasReactivatedDelegate.AddUObject(this, &UVorelUserDataService::HandleReactivated);
}

void UVorelUserDataService::Shutdown()
{
	if (Authentication)
	{
		Authentication->OnAuthenticationStateChanged.RemoveAll(this);
		FCoreDelegates::ApplicationHasReactivatedDelegate.RemoveAll(this);
		Authentication = nullptr;
	}
	Forget();
}

void UVorelUserDataService::GetUserData()
{
	Tries = 0;
	bFailureTold = false;
	if (!Fetch && !Frame.IsValid())
	{
		Ask();
	}
}

void UVorelUserDataService::AskAgain()
{
	bAskOnceMore = Fetch || Frame.IsValid();
	if (!bAskOnceMore)
	{
		Ask();
	}
}

void UVorelUserDataService::Ask()
{
	FTSTicker::RemoveTicker(NextTry);
	NextTry.Reset();
	bAskOnceMore = false;
	if (!Authentication || !Authentication->IsAuthenticated())
	{
		return;
	}
	Fetch = MakeUnique<FUserDataFetch>(Source);
	Fetch->OnDone = [this](const TOptional<FVorelUserData>& Data, const FString& Problem)
	{
		HandleDone(Data, Problem);
	};
	Fetch->Start();
}

void UVorelUserDataService::HandleDone(const TOptional<FVorelUserData>& Data, const FString& Problem)
{
	UE_CLOG(!Data, LogVorel, Log, TEXT("The user data could not be fetched: %s"), *Problem);
	Answer = Data;
	Fetch.Reset();
	Frame = FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateUObject(this, &UVorelUserDataService::Tell));
}

bool UVorelUserDataService::Tell(float DeltaTime)
{
	Frame.Reset();
	if (bAskOnceMore)
	{
		Ask();
	}
	if (Answer)
	{
		Tries = 0;
		bFailureTold = false;
		UserData = *Answer;
		OnUserDataChanged.Broadcast(UserData, true);
	}
	else
	{
		TellFailure();
	}
	return false;
}

void UVorelUserDataService::TellFailure()
{
	if (!Fetch && Tries < static_cast<int32>(std::size(PausesBeforeTries)))
	{
		NextTry = FTSTicker::GetCoreTicker().AddTicker(
			FTickerDelegate::CreateUObject(this, &UVorelUserDataService::Retry), PausesBeforeTries[Tries++]);
	}
	if (!bFailureTold)
	{
		bFailureTold = true;
		OnUserDataChanged.Broadcast(FVorelUserData(), false);
	}
}

bool UVorelUserDataService::Retry(float DeltaTime)
{
	NextTry.Reset();
	Ask();
	return false;
}

void UVorelUserDataService::HandleAuthenticationStateChanged()
{
	if (Authentication->IsAuthenticated())
	{
		return;
	}
	const bool bKnown = !UserData.UserName.IsEmpty();
	Forget();
	// The one thing told that nobody asked for: else the next user would see this one's name, and suffer from this one's credits.
	if (bKnown)
	{
		OnUserDataChanged.Broadcast(FVorelUserData(), true);
	}
}

// The user may come back from buying credits, or from mending the network.
void UVorelUserDataService::HandleReactivated()
{
	const bool bNoneLeft = !UserData.UserName.IsEmpty() && UserData.Credits <= 0;
	if (bFailureTold || bNoneLeft)
	{
		AskAgain();
	}
}

void UVorelUserDataService::Forget()
{
	FTSTicker::RemoveTicker(Frame);
	FTSTicker::RemoveTicker(NextTry);
	Frame.Reset();
	NextTry.Reset();
	Fetch.Reset();
	UserData = FVorelUserData();
	Tries = 0;
	bFailureTold = false;
	bAskOnceMore = false;
}
