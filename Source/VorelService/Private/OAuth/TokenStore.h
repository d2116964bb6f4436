// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Accounts/AccountStore.h"

// What a code is given for, and what its user has to know of it.
struct FCodeTerms
{
	std::string RedirectUri{};

	// By the method "S256".
	std::string Challenge{};
};

struct FTokens
{
	std::string Access{};
	std::string Refresh{};
};

// The codes and tokens that are in use, all services on the file taken together. Calls throw an FStoreError where the file can't be used.
class FTokenStore
{
public:
	static constexpr std::int64_t AccessSeconds = 60 * 60;

	explicit FTokenStore(FServiceDatabase& InDatabase)
		: Database(InDatabase)
	{
	}

	// Nothing where the account has another password than it was signed in to with, or is gone.
	std::optional<std::string> AddCode(const FAccount& Account, const FCodeTerms& Terms, std::int64_t Now);

	// A code is good for one try. One that comes again takes back what it gave the first time.
	std::optional<FTokens> UseCode(const std::string& Code, const std::string& RedirectUri, const std::string& Verifier, std::int64_t Now);

	// Each refresh token is followed by another. It stays good for a moment, since the reply may be lost, or two programs may share it;
	// after that its use tells of a thief, and ends the login.
	std::optional<FTokens> Refresh(const std::string& RefreshToken, std::int64_t Now);

	// By a token of either kind, with all others of its login.
	void Revoke(const std::string& Token);

	std::optional<FAccount> FindAccount(const std::string& AccessToken, std::int64_t Now);

private:
	FServiceDatabase& Database;
};
