// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Accounts/UserHandlers.h"

#include "Http/Replies.h"
#include "ServiceParts.h"

#include <ctime>
#include <nlohmann/json.hpp>

using nlohmann::json;

namespace
{
std::string FormatTime(std::int64_t Seconds)
{
	const std::time_t Time = Seconds;
	std::tm Parts{};
	char Text[32] = {};
	std::strftime(Text, sizeof(Text), "%Y-%m-%dT%H:%M:%SZ", ::gmtime_r(&Time, &Parts));
	return Text;
}
} // namespace

void ServeUser(FServiceParts& Parts, const httplib::Request&, httplib::Response& Response, const FAccount& Account)
{
	// Accounts have no mail address here.
	const json User = {{"name", Account.Name}, {"email", ""}, {"credits", Parts.Credits.GetLeft(Account.Id, Parts.Now())},
		{"daily_credits", Parts.Credits.GetDaily()}, {"roles", {"user"}}};
	SendJson(Response, 200, User.dump());
}

void ServeCredits(FServiceParts& Parts, const httplib::Request&, httplib::Response& Response, const FAccount& Account)
{
	const std::int64_t Now = Parts.Now();
	const json Credits = {{"credits", Parts.Credits.GetLeft(Account.Id, Now)}, {"daily_credits", Parts.Credits.GetDaily()},
		{"resets_at", FormatTime(FCreditStore::GetResetTime(Now))}};
	SendJson(Response, 200, Credits.dump());
}
