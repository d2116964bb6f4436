// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

class FServiceDatabase;
struct FAccountName;

struct FAccount
{
	std::int64_t Id = 0;

	// Empty: the local account before its name was asked.
	std::string Name{};

	// Where it was found by its name, what a typed password is compared with.
	std::string PasswordHash{};
};

// Who may use the service. Each call throws an FStoreError where the file can't be used.
class FAccountStore
{
public:
	explicit FAccountStore(FServiceDatabase& InDatabase)
		: Database(InDatabase)
	{
	}

	// The account without a password, which is made where it is missing.
	FAccount GetLocalAccount();

	// The name counts where there is none yet, from whatever program. It stays without a name where an account with a password has this
	// one.
	FAccount NameLocalAccount(const FAccountName& Name);

	// Of those with passwords.
	std::optional<FAccount> Find(const FAccountName& Name);

	// False: the name is taken, or there is none of that name.
	bool Add(const FAccountName& Name, const std::string& PasswordHash);
	bool SetPassword(const FAccountName& Name, const std::string& PasswordHash);
	bool Remove(const FAccountName& Name);

	std::vector<std::string> List();

private:
	FServiceDatabase& Database;
};
