// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Routes.h"

#include "Accounts/BillingHandlers.h"
#include "Accounts/Gatekeeper.h"
#include "Accounts/UserHandlers.h"
#include "Chat/ChatHandlers.h"
#include "Http/Replies.h"
#include "OAuth/LoginHandlers.h"
#include "OAuth/OAuthHandlers.h"
#include "OpenApi/OpenApi.h"
#include "Pages/Pages.h"
#include "ServiceParts.h"

#include <nlohmann/json.hpp>

using httplib::Request;
using httplib::Response;
using nlohmann::json;

namespace
{
httplib::Server::Handler ServePage(std::string Html)
{
	return [Html = std::move(Html)](const Request&, Response& Reply)
	{
		SendPage(Reply, 200, Html);
	};
}

httplib::Server::Handler ServeJson(std::string Json)
{
	return [Json = std::move(Json)](const Request&, Response& Reply)
	{
		SendJson(Reply, 200, Json);
	};
}

std::string MakeVersionFeed(const FServiceParts& Parts)
{
	return json({{"version", Parts.Options.Version}, {"download_url", Parts.Address + "/plugin"}}).dump();
}

// As long as programs that send no token are about, they are served for nothing.
httplib::Server::Handler WithPayer(FServiceParts& Parts, FChatHandlers& Chat)
{
	const auto Paid = WithAccount(Parts, [&Chat](FServiceParts&, const Request& Call, Response& Reply, const FAccount& Account)
		{ Chat.ServeCompletion(Call, Reply, &Account); });
	return [&Parts, &Chat, Paid](const Request& Call, Response& Reply)
	{
		Parts.Options.bTokenRequired || Call.has_header("Authorization") ? Paid(Call, Reply) : Chat.ServeCompletion(Call, Reply, nullptr);
	};
}
} // namespace

std::vector<FRoute> MakeRoutes(FServiceParts& Parts, FChatHandlers& Chat)
{
	const FLoginHandlers Login(Parts);
	const FBillingHandlers Billing(Parts);
	return {
		{"GET", "/", ServePage(MakeStartPage(Parts.Address, Parts.Options.bPasswords))},
		{"GET", "/tos", ServePage(MakeTermsPage())},
		{"GET", "/privacy", ServePage(MakePrivacyPage())},
		{"GET", "/plugin", ServePage(MakePluginPage(Parts.Options.Version))},
		{"GET", "/login",
			[Login](const Request& Call, Response& Reply)
			{
				Login.Show(Call, Reply);
			}},
		{"POST", "/login",
			[Login](const Request& Call, Response& Reply)
			{
				Login.Take(Call, Reply);
			}},
		{"GET", "/billing",
			[Billing](const Request& Call, Response& Reply)
			{
				Billing.Show(Call, Reply);
			}},
		{"POST", "/billing",
			[Billing](const Request& Call, Response& Reply)
			{
				Billing.TopUp(Call, Reply);
			}},
		{"POST", "/logout",
			[Billing](const Request& Call, Response& Reply)
			{
				Billing.SignOut(Call, Reply);
			}},
		{"GET", "/.well-known/oauth-authorization-server",
			[&Parts](const Request&, Response& Reply)
			{
				ServeMetadata(Parts, Reply);
			}},
		{"POST", "/oauth/token",
			[&Parts](const Request& Call, Response& Reply)
			{
				ServeToken(Parts, Call, Reply);
			}},
		{"POST", "/oauth/revoke",
			[&Parts](const Request& Call, Response& Reply)
			{
				ServeRevocation(Parts, Call, Reply);
			}},
		{"GET", "/openapi.json", ServeJson(MakeOpenApi(Parts.Address))},
		{"GET", "/v1/version", ServeJson(MakeVersionFeed(Parts))},
		{"GET", "/v1/user", WithAccount(Parts, ServeUser)},
		{"GET", "/v1/credits", WithAccount(Parts, ServeCredits)},
		{"GET", "/v1/models",
			[](const Request&, Response& Reply)
			{
				FChatHandlers::ServeModels(Reply);
			}},
		{"POST", "/v1/chat/completions", WithPayer(Parts, Chat), Parts.Options.MaxRequestBytes},
	};
}
