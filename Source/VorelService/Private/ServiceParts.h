// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Accounts/BrowserSessions.h"
#include "Accounts/CreditStore.h"
#include "Accounts/FormTokens.h"
#include "Accounts/SignIn.h"
#include "Chat/PacedStream.h"
#include "LocalService.h"
#include "OAuth/TokenStore.h"

class FGuide;

// What the routes' handlers share. Each part may be used from several threads.
struct FServiceParts
{
	FServiceParts(const FLocalServiceOptions& InOptions, std::unique_ptr<FGuide> InGuide, std::unique_ptr<FServiceDatabase> InDatabase,
		const std::string& InAddress);
	~FServiceParts();

	std::int64_t Now() const;

	const FLocalServiceOptions Options;

	// As programs and browsers know it; the issuer of all codes and tokens.
	const std::string Address;

	const std::unique_ptr<FGuide> Guide;
	const std::unique_ptr<FServiceDatabase> Database;
	FAccountStore Accounts;
	FCreditStore Credits;
	FTokenStore Tokens;
	FBrowserSessions Sessions;
	FFormTokens FormTokens;
	FSignIn SignIn;

	// For the answers under way.
	FStopSignal StopSignal;
};
