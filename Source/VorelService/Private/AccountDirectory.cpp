// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "AccountDirectory.h"

#include "Accounts/AccountName.h"
#include "Accounts/AccountStore.h"
#include "Accounts/Passwords.h"
#include "Accounts/Secrets.h"
#include "Accounts/ServiceDatabase.h"

namespace
{
// Work returns a sentence where it failed.
template <typename WorkType>
bool Try(std::string& OutError, WorkType Work)
{
	try
	{
		OutError = Work();
	}
	catch (const FStoreError& Error)
	{
		OutError = DescribeDataFile(Error);
	}
	return OutError.empty();
}

// What the store is given of an account that is to be made or changed.
bool ReadAccount(const std::string& Name, const std::string& Password, FAccountName& OutName, std::string& OutHash, std::string& OutError)
{
	if (!ReadAccountName(Name, OutName, OutError) || !IsGoodPassword(Password, OutError))
	{
		return false;
	}
	OutHash = HashPassword(Password);
	OutError = OutHash.empty() ? "There is not enough memory to hash the password." : "";
	return OutError.empty();
}

const char* const NoSuchAccount = "There is no account of that name.";
} // namespace

std::unique_ptr<FAccountDirectory> FAccountDirectory::Open(const std::string& DataFile, std::string& OutError)
{
	if (!PrepareSecrets())
	{
		OutError = "This system has no source of random numbers.";
		return nullptr;
	}
	std::unique_ptr<FServiceDatabase> Database = OpenServiceDatabase(DataFile, OutError);
	return Database ? std::unique_ptr<FAccountDirectory>(new FAccountDirectory(std::move(Database))) : nullptr;
}

FAccountDirectory::FAccountDirectory(std::unique_ptr<FServiceDatabase> InDatabase)
	: Database(std::move(InDatabase))
{
}

FAccountDirectory::~FAccountDirectory() = default;

bool FAccountDirectory::Add(const std::string& Name, const std::string& Password, std::string& OutError)
{
	FAccountName Read;
	std::string Hash;
	return ReadAccount(Name, Password, Read, Hash, OutError) &&
		   Try(OutError, [&] { return FAccountStore(*Database).Add(Read, Hash) ? "" : "There is an account of that name already."; });
}

bool FAccountDirectory::SetPassword(const std::string& Name, const std::string& Password, std::string& OutError)
{
	FAccountName Read;
	std::string Hash;
	return ReadAccount(Name, Password, Read, Hash, OutError) &&
		   Try(OutError, [&] { return FAccountStore(*Database).SetPassword(Read, Hash) ? "" : NoSuchAccount; });
}

bool FAccountDirectory::Remove(const std::string& Name, std::string& OutError)
{
	FAccountName Read;
	return ReadAccountName(Name, Read, OutError) &&
		   Try(OutError, [&] { return FAccountStore(*Database).Remove(Read) ? "" : NoSuchAccount; });
}

bool FAccountDirectory::List(std::vector<std::string>& OutNames, std::string& OutError) const
{
	return Try(OutError,
		[&]
		{
			OutNames = FAccountStore(*Database).List();
			return "";
		});
}
