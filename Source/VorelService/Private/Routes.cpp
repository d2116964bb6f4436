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

namespace
{
using FHandler = void (*)(FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response);

httplib::Server::Handler With(FServiceParts& Parts, FHandler Handler)
{
	return [&Parts, Handler](const httplib::Request& Request, httplib::Response& Response)
	{
		Handler(Parts, Request, Response);
	};
}

httplib::Server::Handler ServePage(std::string Html)
{
	return [Html = std::move(Html)](const httplib::Request&, httplib::Response& Response)
	{
		SendPage(Response, 200, Html);
	};
}

httplib::Server::Handler ServeJson(std::string Json)
{
	return [Json = std::move(Json)](const httplib::Request&, httplib::Response& Response)
	{
		SendJson(Response, 200, Json);
	};
}

std::string MakeVersionFeed(const FServiceParts& Parts)
{
	return nlohmann::json({{"version", Parts.Options.Version}, {"download_url", Parts.Address + "/plugin"}}).dump();
}
} // namespace

std::vector<FRoute> MakeRoutes(FServiceParts& Parts)
{
	const auto AdmitUser = [&Parts](const httplib::Request& Request, httplib::Response& Response)
	{
		return Admit(Parts, Request, Response);
	};
	return {
		{"GET", "/", ServePage(MakeStartPage(Parts.Address, Parts.Options.bPasswords))},
		{"GET", "/tos", ServePage(MakeTermsPage())},
		{"GET", "/privacy", ServePage(MakePrivacyPage())},
		{"GET", "/plugin", ServePage(MakePluginPage(Parts.Options.Version))},
		{"GET", "/login", With(Parts, ShowLogin)},
		{"POST", "/login", With(Parts, TakeLogin)},
		{"GET", "/billing", With(Parts, ShowBilling)},
		{"POST", "/billing", With(Parts, TopUp)},
		{"POST", "/logout", With(Parts, SignOut)},
		{"GET", "/.well-known/oauth-authorization-server", With(Parts, ServeMetadata)},
		{"POST", "/oauth/token", With(Parts, ServeToken)},
		{"POST", "/oauth/revoke", With(Parts, ServeRevocation)},
		{"GET", "/openapi.json", ServeJson(MakeOpenApi(Parts.Address))},
		{"GET", "/v1/version", ServeJson(MakeVersionFeed(Parts))},
		{"GET", "/v1/user", WithAccount(Parts, ServeUser)},
		{"GET", "/v1/credits", WithAccount(Parts, ServeCredits)},
		{"GET", "/v1/models", WithAccount(Parts, ServeModels)},
		{"POST", "/v1/chat/completions", WithAccount(Parts, ServeCompletion), Parts.Options.MaxRequestBytes, AdmitUser},
	};
}
