// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Accounts/BrowserSessions.h"
#include "Accounts/CreditStore.h"
#include "Accounts/FormTokens.h"
#include "Accounts/SignIn.h"
#include "LocalService.h"
#include "OAuth/TokenStore.h"

// What the routes' handlers share. Each part may be used from several threads.
struct FServiceParts
{
	FServiceParts(const FLocalServiceOptions& InOptions, FServiceDatabase& Database, const std::string& InAddress);

	std::int64_t Now() const;

	const FLocalServiceOptions Options;

	// As programs and browsers know it; the issuer of all codes and tokens.
	const std::string Address;

	FAccountStore Accounts;
	FCreditStore Credits;
	FTokenStore Tokens;
	FBrowserSessions Sessions;
	FFormTokens FormTokens;
	FSignIn SignIn;
};
