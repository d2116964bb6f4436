// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QTimer>

#include "Account/AccessTokenSource.h"
#include "AuthenticationService.h"

// Hands over the tokens that a test wrote down, one for each request, and none after the last.
class FFakeTokens final : public IAccessTokenSource
{
public:
	explicit FFakeTokens(const TArray<FString>& InTokens)
		: Tokens(InTokens)
	{
	}

	TSharedPtr<void> RequestToken(const FString& RefusedToken, TFunction<void(const FString& Token)> OnToken) override
	{
		const FString Token = Tokens.IsValidIndex(Refused.Num()) ? Tokens[Refused.Num()] : FString();
		Refused.Add(RefusedToken);
		const TSharedRef<QTimer> Soon = MakeShared<QTimer>();
		QObject::connect(&*Soon, &QTimer::timeout, &*Soon,
			[Token, OnToken, &Timer = *Soon]
			{
				Timer.stop();
				OnToken(Token);
			});
		Soon->start(0);
		return Soon;
	}

	TArray<FString> Tokens;
	// What each request named as refused.
	TArray<FString> Refused;
};

class UFakeAuthentication final : public UAuthenticationService
{
public:
	bool IsAuthenticated() const override { return bSignedIn; }
	void StartLogin() override { Set(true); }
	void Logout() override { Set(false); }

private:
	void Set(bool bInSignedIn)
	{
		bSignedIn = bInSignedIn;
		OnAuthenticationStateChanged.Broadcast();
	}

	bool bSignedIn = true;
};
