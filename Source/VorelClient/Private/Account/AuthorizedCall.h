// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

// Qt's headers come before the engine's, whose macros they don't survive.
#include "Http/HttpCall.h"

class IAccessTokenSource;

// One exchange with a server in the user's name. Where the server refuses the token, it is renewed and everything sent once more; nobody
// hears of the first refusal. Destroying the call ends it in silence.
class FAuthorizedCall
{
public:
	// Without a source of tokens the request goes out as it is, once. The source must outlive the call.
	FAuthorizedCall(FHttpRequest InRequest, const FRequestLimits& InLimits, IAccessTokenSource* InTokens);

	// As of FHttpCall. Where there is no token to be had, it ends as if the server had refused one.
	TFunction<void(std::string_view)> OnBody;
	TFunction<void(const TOptional<FHttpFailure>& Failure)> OnEnded;

	void Start();

	// Of an exchange that has begun to deliver.
	void LetGo() { Http->LetGo(); }
	void HangUp() { Http->HangUp(); }

private:
	void RequestToken(const FString& RefusedToken);
	void Send(const FString& Token);
	void HandleEnded(const TOptional<FHttpFailure>& Failure);
	void End(const TOptional<FHttpFailure>& Failure);

	FHttpRequest Request;
	FRequestLimits Limits;
	IAccessTokenSource* Tokens = nullptr;
	TSharedPtr<void> TokenRequest;
	FString Token;
	bool bRenewed = false;
	TUniquePtr<FHttpCall> Http;
};
