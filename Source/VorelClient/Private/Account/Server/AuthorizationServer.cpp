// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QHostAddress>
#include <QUrl>

#include "Account/Server/AuthorizationServer.h"

#include "Account/AccountText.h"

namespace
{
std::string GetText(const FJson& Value)
{
	return Value.is_string() ? Value.get<std::string>() : std::string();
}

bool Contains(const FJson& List, const char* Text)
{
	return List.is_array() && std::find(List.begin(), List.end(), FJson(Text)) != List.end();
}

// An address that can't be used counts as none.
std::string GetAddress(const FJson& Metadata, const char* Name)
{
	const std::string Url = GetText(GetMember(Metadata, Name));
	return FAuthorizationServer::IsUsableAddress(Url) ? Url : std::string();
}

std::string ChooseScope(const FJson& Supported)
{
	std::string Scope;
	for (const char* const Name : {"openid", "profile", "email", "offline_access"})
	{
		if (Contains(Supported, Name))
		{
			Scope += (Scope.empty() ? "" : " ") + std::string(Name);
		}
	}
	return Scope;
}
} // namespace

bool FAuthorizationServer::IsUsableAddress(const std::string& Url)
{
	const QUrl Parsed(QString::fromStdString(Url), QUrl::StrictMode);
	const QString Host = Parsed.host();
	const bool bHere = Host == QLatin1String("localhost") || QHostAddress(Host).isLoopback();
	return Parsed.isValid() && !Host.isEmpty() && !Parsed.hasFragment() && Parsed.userInfo().isEmpty() &&
		   (Parsed.scheme() == QLatin1String("https") || (Parsed.scheme() == QLatin1String("http") && bHere));
}

bool FAuthorizationServer::Read(const FJson& Metadata, const std::string& Issuer, FAuthorizationServer& OutServer, FText& OutFailure)
{
	const std::string Named = GetText(GetMember(Metadata, "issuer"));
	if (Named != Issuer)
	{
		OutFailure = AccountText::OtherIssuer(FromUtf8(Issuer), FromUtf8(Named));
		return false;
	}
	OutServer.Issuer = Issuer;
	OutServer.AuthorizationEndpoint = GetAddress(Metadata, "authorization_endpoint");
	OutServer.TokenEndpoint = GetAddress(Metadata, "token_endpoint");
	OutServer.RevocationEndpoint = GetAddress(Metadata, "revocation_endpoint");
	OutServer.UserInfoEndpoint = GetAddress(Metadata, "userinfo_endpoint");
	OutServer.Scope = ChooseScope(GetMember(Metadata, "scopes_supported"));
	const FJson& NamesItself = GetMember(Metadata, "authorization_response_iss_parameter_supported");
	OutServer.bNamesItself = NamesItself.is_boolean() && NamesItself.get<bool>();
	const FJson& Methods = GetMember(Metadata, "code_challenge_methods_supported");
	const bool bUsable =
		!OutServer.AuthorizationEndpoint.empty() && !OutServer.TokenEndpoint.empty() && (Methods.is_null() || Contains(Methods, "S256"));
	OutFailure = bUsable ? FText() : AccountText::UnusableServer();
	return bUsable;
}
