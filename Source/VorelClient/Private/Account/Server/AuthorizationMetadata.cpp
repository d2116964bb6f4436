// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Account/NextTurn.h"
#include "Http/HttpFetch.h"

#include "Account/AccountText.h"
#include "Account/Server/AuthorizationMetadata.h"

namespace
{
std::string WithoutSlash(std::string Url)
{
	while (!Url.empty() && Url.back() == '/')
	{
		Url.pop_back();
	}
	return Url;
}

// The well-known path goes between the host and the path of the issuer.
std::string MakeOAuthAddress(const std::string& Issuer)
{
	QUrl Url(QString::fromStdString(WithoutSlash(Issuer)));
	Url.setPath(QLatin1String("/.well-known/oauth-authorization-server") + Url.path());
	return Url.toString(QUrl::FullyEncoded).toStdString();
}
} // namespace

FAuthorizationMetadata::FAuthorizationMetadata(const FString& InIssuer, const FRequestLimits& InLimits)
	: Issuer(ToUtf8(InIssuer))
	, Limits(InLimits)
	, NextTurn(MakeUnique<FNextTurn>([this] { Begin(); }))
{
}

FAuthorizationMetadata::~FAuthorizationMetadata() = default;

TSharedPtr<void> FAuthorizationMetadata::Request(FOnEnded OnEnded)
{
	NextTurn->Ask();
	return Waiting.Add(::MoveTemp(OnEnded));
}

void FAuthorizationMetadata::Begin()
{
	if (Server)
	{
		End(FText());
	}
	else if (!FAuthorizationServer::IsUsableAddress(Issuer))
	{
		End(AccountText::BadIssuer(FromUtf8(Issuer)));
	}
	else if (!Fetch)
	{
		Ask(MakeOAuthAddress(Issuer), false);
	}
}

void FAuthorizationMetadata::Ask(const std::string& Url, bool bLast)
{
	FHttpRequest Request;
	Request.Url = QUrl(QString::fromStdString(Url), QUrl::StrictMode);
	Fetch = MakeUnique<FHttpFetch>(::MoveTemp(Request), Limits,
		[this, bLast](const TOptional<FHttpFailure>& Failure, const std::string& Body) { HandleReply(Failure, Body, bLast); });
}

void FAuthorizationMetadata::HandleReply(const TOptional<FHttpFailure>& Failure, const std::string& Body, bool bLast)
{
	Fetch.Reset();
	const FJson Metadata = ParseJson(Body);
	const bool bDescribed = !Failure && Metadata.is_object();
	// A server that only knows the other path says so, or sends one of its pages.
	const bool bAnswered = !Failure || Failure->Kind == EHttpFailure::Status;
	if (!bDescribed && bAnswered && !bLast)
	{
		Ask(WithoutSlash(Issuer) + "/.well-known/openid-configuration", true);
		return;
	}
	FAuthorizationServer Found;
	const bool bNone = !Failure || Failure->Status == 404;
	FText Reason = bNone ? AccountText::UnusableServer() : AccountText::Describe(*Failure);
	if (bDescribed && FAuthorizationServer::Read(Metadata, Issuer, Found, Reason))
	{
		Server = Found;
	}
	End(Reason);
}

void FAuthorizationMetadata::End(const FText& Failure)
{
	Waiting.Answer(
		[this, &Failure](const FOnEnded& OnEnded)
		{
			OnEnded(Server.GetPtrOrNull(), Failure);
			return true;
		});
}
