// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "VorelUserData.h"
#include <string>

class FAuthorizationMetadata;
class FAuthorizedCall;
class FNextTurn;
class IAccessTokenSource;

// Whom to ask about the user. All of it must outlive the questions.
struct FUserDataSource
{
	// Without a slash at the end.
	FString ServiceUrl{};
	IAccessTokenSource* ServiceTokens = nullptr;

	// Where another server signs users in, it knows their names; else null.
	FAuthorizationMetadata* Issuer = nullptr;
	IAccessTokenSource* IssuerTokens = nullptr;

	// For all of it.
	double MaxSeconds = 60.0;
};

// Asks once what is known of the user. Destroying it hangs up.
class FUserDataFetch
{
public:
	explicit FUserDataFetch(const FUserDataSource& InSource);
	~FUserDataFetch();

	// Comes once, after Start has returned, and may destroy the fetch. Without data the problem says why, for the log.
	TFunction<void(const TOptional<FVorelUserData>& Data, const FString& Problem)> OnDone;

	void Start();

private:
	void Ask(const FString& Url, IAccessTokenSource* Tokens, FString (FUserDataFetch::*Read)());
	FString ReadAccount();
	FString ReadUserInfo();
	void AskIssuer();
	void End(const FString& Problem);

	FUserDataSource Source;
	FVorelUserData Data;
	std::string Body;
	TSharedPtr<void> IssuerRequest;
	TUniquePtr<FAuthorizedCall> Call;
	// Ends the fetch in the calls' place.
	TUniquePtr<FNextTurn> Limit;
};
