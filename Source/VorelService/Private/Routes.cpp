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
httplib::Server::Handler With(FServiceParts& Parts, FHandler Handler)
{
	return [&Parts, Handler](const httplib::Request& Request, httplib::Response& Response)
	{
		Handler(Parts, Request, Response);
	};
}

// Send: how what never changes is sent.
httplib::Server::Handler Serve(std::string Content, void (*Send)(httplib::Response& Response, int Status, const std::string& Content))
{
	return [Content = std::move(Content), Send](const httplib::Request&, httplib::Response& Response)
	{
		Send(Response, 200, Content);
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
		{"GET", "/", Serve(MakeStartPage(Parts.Address, Parts.Options.bPasswords), SendPage)},
		{"GET", "/tos", Serve(MakeTermsPage(), SendPage)},
		{"GET", "/privacy", Serve(MakePrivacyPage(), SendPage)},
		{"GET", "/plugin", Serve(MakePluginPage(Parts.Options.Version), SendPage)},
		{"GET", "/login", With(Parts, ShowLogin)},
		{"POST", "/login", With(Parts, TakeLogin)},
		{"GET", "/billing", With(Parts, ShowBilling)},
		{"POST", "/billing", With(Parts, TopUp)},
		{"POST", "/logout", With(Parts, SignOut)},
		{"GET", "/.well-known/oauth-authorization-server", With(Parts, ServeMetadata)},
		{"POST", "/oauth/token", With(Parts, ServeToken)},
		{"POST", "/oauth/revoke", With(Parts, ServeRevocation)},
		{"GET", "/openapi.json", Serve(MakeOpenApi(Parts.Address), SendJson)},
		{"GET", "/v1/version", Serve(MakeVersionFeed(Parts), SendJson)},
		{"GET", "/v1/user", WithAccount(Parts, ServeUser)},
		{"GET", "/v1/credits", WithAccount(Parts, ServeCredits)},
		{"GET", "/v1/models", WithAccount(Parts, ServeModels)},
		{"POST", "/v1/chat/completions", WithAccount(Parts, ServeCompletion), Parts.Options.MaxRequestBytes, AdmitUser},
	};
}
