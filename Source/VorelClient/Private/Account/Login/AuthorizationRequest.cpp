// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Account/Login/AuthorizationRequest.h"

#include "Account/Secrets.h"

FAuthorizationRequest::FAuthorizationRequest(
	const FAuthorizationServer& InServer, const std::string& InClientId, const std::string& InRedirectUri)
	: Server(InServer)
	, ClientId(InClientId)
	, RedirectUri(InRedirectUri)
	, State(Secrets::MakeRandom())
	, Verifier(Secrets::MakeRandom())
{
}

std::string FAuthorizationRequest::MakeUrl() const
{
	FFormFields Fields = {{"response_type", "code"}, {"client_id", ClientId}, {"redirect_uri", RedirectUri},
		{"code_challenge", Secrets::Hash(Verifier)}, {"code_challenge_method", "S256"}, {"state", State}};
	if (!Server.Scope.empty())
	{
		Fields.emplace_back("scope", Server.Scope);
	}
	if (Server.Scope.find("offline_access") != std::string::npos)
	{
		// Such servers renew tokens only for users who were asked.
		Fields.emplace_back("prompt", "consent");
	}
	const bool bHasQuery = Server.AuthorizationEndpoint.find('?') != std::string::npos;
	return Server.AuthorizationEndpoint + (bHasQuery ? "&" : "?") + WriteForm(Fields);
}

ERedirect FAuthorizationRequest::Judge(const FFormFields& Redirect) const
{
	if (!Secrets::AreEqual(GetField(Redirect, "state"), State))
	{
		return ERedirect::OtherLogin;
	}
	if (HasRepeatedField(Redirect))
	{
		return ERedirect::Incomplete;
	}
	const std::string Sender = GetField(Redirect, "iss");
	if (Sender != Server.Issuer && (Server.bNamesItself || !Sender.empty()))
	{
		return ERedirect::OtherServer;
	}
	if (!GetField(Redirect, "error").empty())
	{
		return ERedirect::Refusal;
	}
	return GetField(Redirect, "code").empty() ? ERedirect::Incomplete : ERedirect::Code;
}

FFormFields FAuthorizationRequest::MakeExchange(const std::string& Code) const
{
	return {{"grant_type", "authorization_code"}, {"code", Code}, {"redirect_uri", RedirectUri}, {"client_id", ClientId},
		{"code_verifier", Verifier}};
}
