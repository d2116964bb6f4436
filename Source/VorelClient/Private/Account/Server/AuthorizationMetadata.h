// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Account/Server/AuthorizationServer.h"
#include "Account/WaitingList.h"
#include "Http/RequestLimits.h"

class FHttpFetch;
class FNextTurn;
struct FHttpFailure;

// Asks an issuer for its description, and remembers it once it came.
class FAuthorizationMetadata final
{
public:
	// Server is null where there is none now; then the sentence says why.
	using FOnEnded = TFunction<void(const FAuthorizationServer* Server, const FText& Failure)>;

	FAuthorizationMetadata(const FString& InIssuer, const FRequestLimits& InLimits);
	~FAuthorizationMetadata();

	// OnEnded is called once, never before this returns, and not at all once the handle is released. It must not destroy this.
	[[nodiscard]] TSharedPtr<void> Request(FOnEnded OnEnded);

private:
	void Begin();
	void Ask(const std::string& Url, bool bLast);
	void HandleReply(const TOptional<FHttpFailure>& Failure, const std::string& Body, bool bLast);
	void End(const FText& Failure);

	const std::string Issuer;
	const FRequestLimits Limits;
	TOptional<FAuthorizationServer> Server;
	TWaitingList<FOnEnded> Waiting;
	TUniquePtr<FHttpFetch> Fetch;
	TUniquePtr<FNextTurn> NextTurn;
};
