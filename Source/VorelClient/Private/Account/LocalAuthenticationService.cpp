// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Account/LocalAuthenticationService.h"

void ULocalAuthenticationService::SetSignedIn(bool bInSignedIn)
{
	if (bSignedIn != bInSignedIn)
	{
		bSignedIn = bInSignedIn;
		OnAuthenticationStateChanged.Broadcast();
	}
}
