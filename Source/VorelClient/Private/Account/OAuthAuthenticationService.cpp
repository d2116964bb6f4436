// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Account/Login/Login.h"

#include "Account/AccountText.h"
#include "Account/Server/AuthorizationMetadata.h"
#include "Account/Tokens/LoginSession.h"
#include "Account/LogVorelAccount.h"
#include "Account/OAuthAuthenticationService.h"

UOAuthAuthenticationService::UOAuthAuthenticationService() = default;

UOAuthAuthenticationService::~UOAuthAuthenticationService()
{
	Shutdown();
}

void UOAuthAuthenticationService::Initialize(const FLoginOptions& InOptions)
{
	check(!Session);
	Options = InOptions;
	Metadata = MakeUnique<FAuthorizationMetadata>(Options.Issuer, Options.Limits.Http);
	Session = MakeUnique<FLoginSession>(Options, *Metadata);
	Session->OnChanged = [this]
	{
		Login.Reset();
		TellLater();
	};
}

void UOAuthAuthenticationService::Shutdown()
{
	FTSTicker::RemoveTicker(Frame);
	Frame.Reset();
	Login.Reset();
	Session.Reset();
	Metadata.Reset();
}

bool UOAuthAuthenticationService::IsAuthenticated() const
{
	return Session && Session->IsSignedIn();
}

void UOAuthAuthenticationService::StartLogin()
{
	if (IsAuthenticated())
	{
		TellLater();
		return;
	}
	Login = MakeUnique<FLogin>(
		Options, *Metadata, [this](const TOptional<FTokenSet>& Tokens, const FText& Failure) { HandleLoginEnded(Tokens, Failure); });
}

void UOAuthAuthenticationService::HandleLoginEnded(const TOptional<FTokenSet>& Tokens, const FText& Failure)
{
	Login.Reset();
	if (Tokens)
	{
		UE_LOG(LogVorelAccount, Display, TEXT("%s"), *AccountText::SignedIn().ToString());
		Session->SignIn(*Tokens);
	}
	else
	{
		UE_LOG(LogVorelAccount, Warning, TEXT("%s"), *Failure.ToString());
	}
	TellLater();
}

void UOAuthAuthenticationService::Logout()
{
	if (IsAuthenticated())
	{
		Session->SignOut();
		UE_LOG(LogVorelAccount, Display, TEXT("%s"), *AccountText::SignedOut().ToString());
		TellLater();
	}
}

void UOAuthAuthenticationService::TellLater()
{
	if (!Frame.IsValid())
	{
		Frame = FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateUObject(this, &UOAuthAuthenticationService::Tell));
	}
}

bool UOAuthAuthenticationService::Tell(float DeltaTime)
{
	Frame.Reset();
	OnAuthenticationStateChanged.Broadcast();
	return false;
}

IAccessTokenSource& UOAuthAuthenticationService::GetTokens() const
{
	return *Session;
}

FAuthorizationMetadata& UOAuthAuthenticationService::GetMetadata() const
{
	return *Metadata;
}
