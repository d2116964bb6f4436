// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "OAuth/OAuthHandlers.h"

#include "Http/FormFields.h"
#include "Http/Replies.h"
#include "OAuth/AuthorizationRequest.h"
#include "ServiceParts.h"

#include <nlohmann/json.hpp>

using nlohmann::json;

namespace
{
// What is wrong with the form before any of its secrets is looked at.
bool CheckForm(const httplib::Request& Request, httplib::Response& Response, std::initializer_list<const char*> Required)
{
	bool bComplete = IsForm(Request) && !HasRepeatedField(Request.params);
	for (const char* const Name : Required)
	{
		bComplete = bComplete && !GetField(Request.params, Name).empty();
	}
	if (!bComplete)
	{
		SendOAuthError(Response, 400, "invalid_request", "A field of the form is missing, or is there twice.");
		return false;
	}
	if (GetField(Request.params, "client_id") != ProgramClientId)
	{
		SendOAuthError(Response, 400, "invalid_client", "This service does not know the client.");
		return false;
	}
	return true;
}

void SendTokens(httplib::Response& Response, const std::optional<FTokens>& Tokens)
{
	if (!Tokens)
	{
		SendOAuthError(Response, 400, "invalid_grant", "What was sent is wrong, used, revoked or no longer good.");
		return;
	}
	SendJson(Response, 200,
		json({{"access_token", Tokens->Access}, {"token_type", "Bearer"}, {"expires_in", FTokenStore::AccessSeconds},
				 {"refresh_token", Tokens->Refresh}})
			.dump());
}
} // namespace

void ServeMetadata(FServiceParts& Parts, const httplib::Request&, httplib::Response& Response)
{
	const std::string& Address = Parts.Address;
	const json Metadata = {{"issuer", Address}, {"authorization_endpoint", Address + "/login"},
		{"token_endpoint", Address + "/oauth/token"}, {"revocation_endpoint", Address + "/oauth/revoke"},
		{"response_types_supported", {"code"}}, {"response_modes_supported", {"query"}},
		{"grant_types_supported", {"authorization_code", "refresh_token"}}, {"code_challenge_methods_supported", {"S256"}},
		{"token_endpoint_auth_methods_supported", {"none"}}, {"revocation_endpoint_auth_methods_supported", {"none"}},
		{"authorization_response_iss_parameter_supported", true}, {"service_documentation", Address + "/openapi.json"}};
	SendJson(Response, 200, Metadata.dump());
}

void ServeToken(FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response)
{
	const httplib::Params& Fields = Request.params;
	const std::string GrantType = GetField(Fields, "grant_type");
	if (GrantType == "authorization_code")
	{
		if (CheckForm(Request, Response, {"client_id", "code", "redirect_uri", "code_verifier"}))
		{
			SendTokens(Response, Parts.Tokens.UseCode(GetField(Fields, "code"), GetField(Fields, "redirect_uri"),
									 GetField(Fields, "code_verifier"), Parts.Now()));
		}
	}
	else if (GrantType == "refresh_token")
	{
		if (CheckForm(Request, Response, {"client_id", "refresh_token"}))
		{
			SendTokens(Response, Parts.Tokens.Refresh(GetField(Fields, "refresh_token"), Parts.Now()));
		}
	}
	else if (CheckForm(Request, Response, {"grant_type", "client_id"}))
	{
		SendOAuthError(Response, 400, "unsupported_grant_type", "This service gives tokens for codes and refresh tokens.");
	}
}

void ServeRevocation(FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response)
{
	// Whoever knows a token may end it; who knows none learns nothing.
	if (IsForm(Request))
	{
		Parts.Tokens.Revoke(GetField(Request.params, "token"));
	}
	Response.status = 200;
}
