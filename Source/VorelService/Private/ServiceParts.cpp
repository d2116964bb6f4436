// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "ServiceParts.h"

#include "Accounts/ServiceDatabase.h"
#include "Guide/Guide.h"

#include <ctime>

FServiceParts::FServiceParts(const FLocalServiceOptions& InOptions, std::unique_ptr<FGuide> InGuide,
	std::unique_ptr<FServiceDatabase> InDatabase, const std::string& InAddress)
	: Options(InOptions)
	, Address(InAddress)
	, Guide(std::move(InGuide))
	, Database(std::move(InDatabase))
	, Accounts(*Database)
	, Credits(*Database, InOptions.DailyCredits)
	, Tokens(*Database)
	, Sessions(*Database, InAddress.starts_with("https://"))
	, SignIn(Accounts, InOptions.bPasswords)
{
}

FServiceParts::~FServiceParts() = default;

std::int64_t FServiceParts::Now() const
{
	return Options.Clock ? Options.Clock() : std::time(nullptr);
}
