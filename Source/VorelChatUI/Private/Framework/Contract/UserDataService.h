// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "VorelUserData.h"

DECLARE_MULTICAST_DELEGATE_TwoParams(FOnUserDataChanged, const FVorelUserData& /* Data */, bool /* bSuccess */);

// What is known of the signed-in user. The delegate fires on the game thread.
class UUserDataService : public UObject
{
public:
	// The last user data fetched, empty before the first answer.
	FVorelUserData UserData;

	// An answer to GetUserData arrived. Without success the data says nothing.
	FOnUserDataChanged OnUserDataChanged;

	// Starts a fetch.
	virtual void GetUserData() = 0;
};
