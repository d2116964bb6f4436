// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Account/NextTurn.h"

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
		const TSharedRef<FNextTurn> Soon = MakeShared<FNextTurn>([Token, OnToken] { OnToken(Token); });
		Soon->Ask();
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
