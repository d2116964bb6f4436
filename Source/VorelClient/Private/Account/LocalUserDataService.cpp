// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Account/LocalUserDataService.h"

#define LOCTEXT_NAMESPACE "VorelClient"

ULocalUserDataService::~ULocalUserDataService()
{
	FTSTicker::RemoveTicker(Frame);
}

void ULocalUserDataService::GetUserData()
{
	if (!Frame.IsValid())
	{
		Frame = FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateUObject(this, &ULocalUserDataService::Answer));
	}
}

bool ULocalUserDataService::Answer(float DeltaTime)
{
	Frame.Reset();
	UserData.UserName = LOCTEXT("LocalUser", "Local user").ToString();
	UserData.Credits = 100;
	OnUserDataChanged.Broadcast(UserData, true);
	return false;
}

#undef LOCTEXT_NAMESPACE
