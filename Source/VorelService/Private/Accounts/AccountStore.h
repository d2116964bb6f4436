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

	// The name counts where there is none yet, from whatever program.
	FAccount NameLocalAccount(const FAccountName& Name);

	struct FKnown
	{
		FAccount Account{};
		std::string PasswordHash{};
	};
	// Of those with passwords.
	std::optional<FKnown> Find(const FAccountName& Name);

	// False: the name is taken, or there is none of that name.
	bool Add(const FAccountName& Name, const std::string& PasswordHash);
	bool SetPassword(const FAccountName& Name, const std::string& PasswordHash);
	bool Remove(const FAccountName& Name);

	std::vector<std::string> List();

private:
	FServiceDatabase& Database;
};
