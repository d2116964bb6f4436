// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Accounts/FormTokens.h"

#include "Accounts/Secrets.h"

#include <charconv>

static constexpr std::int64_t LifetimeSeconds = 60 * 60;

FFormTokens::FFormTokens()
	: Key(MakeSecret())
{
}

std::string FFormTokens::Make(const std::string& Purpose, std::int64_t Now) const
{
	const std::string Expiry = std::to_string(Now + LifetimeSeconds);
	return Expiry + '.' + SignText(Expiry + ' ' + Purpose, Key);
}

bool FFormTokens::IsGood(const std::string& Token, const std::string& Purpose, std::int64_t Now) const
{
	const std::size_t Dot = Token.find('.');
	const std::string Expiry = Token.substr(0, Dot);
	std::int64_t ExpiryTime = 0;
	std::from_chars(Expiry.data(), Expiry.data() + Expiry.size(), ExpiryTime);
	return Dot != std::string::npos && ExpiryTime > Now && AreSecretsEqual(Token.substr(Dot + 1), SignText(Expiry + ' ' + Purpose, Key));
}
