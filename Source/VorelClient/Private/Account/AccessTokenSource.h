// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// The access tokens of the user who is signed in, for everything that asks a server in the user's name.
class IAccessTokenSource
{
public:
	virtual ~IAccessTokenSource() = default;

	// Hands over a token that is good for a while yet, renewed before that where needed; empty where nobody is signed in or it can't be
	// renewed now. Never before the call returns; not at all once the returned handle is released.
	// RefusedToken: empty, or the one that a server just answered with 401: another one is handed over, renewed unless that has happened
	// already.
	[[nodiscard]] virtual TSharedPtr<void> RequestToken(const FString& RefusedToken, TFunction<void(const FString& Token)> OnToken) = 0;
};
