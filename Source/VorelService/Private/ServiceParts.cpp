// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "ServiceParts.h"

#include <ctime>

FServiceParts::FServiceParts(const FLocalServiceOptions& InOptions, FServiceDatabase& Database, const std::string& InAddress)
	: Options(InOptions)
	, Address(InAddress)
	, Accounts(Database)
	, Credits(Database, InOptions.DailyCredits)
	, Tokens(Database)
	, Sessions(Database, InAddress.starts_with("https://"))
	, SignIn(Accounts, InOptions.bPasswords)
{
}

std::int64_t FServiceParts::Now() const
{
	return Options.Clock ? Options.Clock() : std::time(nullptr);
}
