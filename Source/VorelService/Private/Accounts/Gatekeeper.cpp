// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Accounts/Gatekeeper.h"

#include "Accounts/Secrets.h"
#include "Http/Replies.h"
#include "ServiceParts.h"

#include <strings.h>

namespace
{
std::string ReadBearerToken(const httplib::Request& Request)
{
	const std::string Value = Request.get_header_value("Authorization");
	const std::string Scheme = "Bearer ";
	return ::strncasecmp(Value.c_str(), Scheme.c_str(), Scheme.size()) == 0 ? Value.substr(Scheme.size()) : std::string();
}

std::optional<FAccount> FindOwner(FServiceParts& Parts, const std::string& Token)
{
	const std::string& OwnerKey = Parts.Options.OwnerKey;
	if (!OwnerKey.empty() && AreSecretsEqual(HashSecret(Token), HashSecret(OwnerKey)))
	{
		return Parts.Accounts.GetLocalAccount();
	}
	return Token.empty() ? std::nullopt : Parts.Tokens.FindAccount(Token, Parts.Now());
}

// Nothing: the response says so.
std::optional<FAccount> FindAccount(FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response)
{
	const std::string Token = ReadBearerToken(Request);
	const std::optional<FAccount> Account = FindOwner(Parts, Token);
	if (!Account)
	{
		Response.set_header("WWW-Authenticate", Token.empty() ? "Bearer" : "Bearer error=\"invalid_token\"");
		SendApiError(Response, 401, "The access token is missing, wrong or no longer good.", "invalid_request_error", "invalid_api_key");
	}
	return Account;
}
} // namespace

bool Admit(FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response)
{
	return FindAccount(Parts, Request, Response).has_value();
}

httplib::Server::Handler WithAccount(FServiceParts& Parts, FAccountHandler Handler)
{
	return [&Parts, Handler](const httplib::Request& Request, httplib::Response& Response)
	{
		if (const std::optional<FAccount> Account = FindAccount(Parts, Request, Response))
		{
			Handler(Parts, Request, Response, *Account);
		}
	};
}
