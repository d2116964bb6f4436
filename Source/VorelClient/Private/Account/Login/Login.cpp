// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include "Account/Login/LoopbackReceiver.h"

#include "Account/Login/Login.h"

#include "Account/AccountText.h"
#include "Account/Server/AuthorizationMetadata.h"
#include "Account/Server/TokenCall.h"
#include "HAL/PlatformProcess.h"

FLogin::FLogin(const FLoginOptions& InOptions, FAuthorizationMetadata& Metadata, FOnEnded InOnEnded)
	: Options(InOptions)
	, OnEnded(::MoveTemp(InOnEnded))
	, Limit([this] { End({}, AccountText::TooLate(Options.Limits.Login)); })
	, MetadataRequest(Metadata.Request(
		  [this](const FAuthorizationServer* Server, const FText& Failure) { Server ? OpenBrowser(*Server) : End({}, Failure); }))
{
	Limit.Ask(Options.Limits.Login);
}

FLogin::~FLogin() = default;

void FLogin::OpenBrowser(const FAuthorizationServer& Server)
{
	TokenEndpoint = Server.TokenEndpoint;
	// Listens before anybody can know where.
	Receiver = MakeUnique<FLoopbackReceiver>(Options.Limits.Connection);
	if (!Receiver->Listen())
	{
		End({}, AccountText::NoPort());
		return;
	}
	Request = MakeUnique<FAuthorizationRequest>(Server, ToUtf8(Options.ClientId), Receiver->GetRedirectUri());
	Receiver->OnRedirect = [this](const FFormFields& Redirect)
	{
		return TakeRedirect(Redirect);
	};
	Receiver->OnAccepted = [this]
	{
		HandleAccepted();
	};
	FString Error;
	FPlatformProcess::LaunchURL(*FromUtf8(Request->MakeUrl()), nullptr, &Error);
	if (!Error.IsEmpty())
	{
		End({}, AccountText::NoBrowser());
	}
}

ERedirect FLogin::TakeRedirect(const FFormFields& Redirect)
{
	const ERedirect Kind = Request->Judge(Redirect);
	if (Kind == ERedirect::Code)
	{
		Code = GetField(Redirect, "code");
	}
	else if (Kind == ERedirect::Refusal)
	{
		Refusal = GetField(Redirect, "error");
	}
	return Kind;
}

void FLogin::HandleAccepted()
{
	Receiver.Reset();
	if (!Refusal.empty())
	{
		End({}, AccountText::RefusedInBrowser(FromUtf8(Refusal)));
		return;
	}
	Call = MakeUnique<FTokenCall>(
		TokenEndpoint, Request->MakeExchange(Code), Options, [this](const FTokenReply& Reply) { End(Reply.Tokens, Reply.Failure); });
}

void FLogin::End(const TOptional<FTokenSet>& Tokens, const FText& Failure)
{
	const FOnEnded Handler = OnEnded;
	const TOptional<FTokenSet> Gained = Tokens;
	const FText Reason = Failure;
	Handler(Gained, Reason);
}
