// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

DECLARE_MULTICAST_DELEGATE(FOnAuthenticationStateChanged);

// Who is signed in. The delegate fires on the game thread.
class UAuthenticationService : public UObject
{
public:
	// The user signed in or out.
	FOnAuthenticationStateChanged OnAuthenticationStateChanged;

	virtual bool IsAuthenticated() const = 0;
	virtual void StartLogin() = 0;
	virtual void Logout() = 0;
};
