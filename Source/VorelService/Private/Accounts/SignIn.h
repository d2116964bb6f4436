// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Accounts/AccountStore.h"
#include "Accounts/Passwords.h"
#include "Accounts/TryLimiter.h"

// For whoever is not told whether there is such a name.
inline constexpr const char* WrongNameOrPassword = "The name or the password is wrong.";

struct FSignInResult
{
	// Where the sign-in succeeded.
	std::optional<FAccount> Account{};

	// Else a sentence for the user, and the seconds until the next try makes sense, where it is too early now.
	std::string Problem{};
	int RetryAfter = 0;
};

// Whether people are who they say.
class FSignIn
{
public:
	// Without bPasswords everybody is the one local account, and at most asked for its name.
	FSignIn(FAccountStore& InAccounts, bool bPasswords);

	FSignInResult Try(const std::string& Name, const std::string& Password, std::int64_t Now);

private:
	// Problem: what is wrong with the name; empty for nothing.
	FSignInResult CheckLocal(const FAccountName& Name, const std::string& Problem);
	FSignInResult CheckPassword(const FAccountName& Name, const std::string& Password);

	FAccountStore& Accounts;
	FTryLimiter Limiter;

	// Missing where there are no passwords.
	std::optional<FPasswordCheck> Passwords;
};
