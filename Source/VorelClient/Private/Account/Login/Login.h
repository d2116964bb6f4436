// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Account/NextTurn.h"
#include "Account/Login/AuthorizationRequest.h"
#include "Account/Server/TokenSet.h"

class FAuthorizationMetadata;
class FLoopbackReceiver;
class FTokenCall;

// One attempt to sign in, from the click to the tokens: asks the server where to go, sends the browser there, waits until it comes back,
// and turns the code that it brings into tokens. Destroying it gives the attempt up in silence; it can't succeed any more then.
class FLogin final
{
public:
	// Tokens: unset where nobody signed in; then the sentence says why.
	using FOnEnded = TFunction<void(const TOptional<FTokenSet>& Tokens, const FText& Failure)>;

	// Options and metadata must outlive the login. OnEnded is called once, not before this returns, and may destroy the login.
	FLogin(const FLoginOptions& InOptions, FAuthorizationMetadata& Metadata, FOnEnded InOnEnded);
	~FLogin();

private:
	void OpenBrowser(const FAuthorizationServer& Server);
	ERedirect TakeRedirect(const FFormFields& Redirect);
	void HandleAccepted();
	void End(const TOptional<FTokenSet>& Tokens, const FText& Failure);

	const FLoginOptions& Options;
	FOnEnded OnEnded;
	FNextTurn Limit;
	TSharedPtr<void> MetadataRequest;
	TUniquePtr<FAuthorizationRequest> Request;
	std::string TokenEndpoint;
	TUniquePtr<FLoopbackReceiver> Receiver;
	// What the redirect brought: one of them.
	std::string Code;
	std::string Refusal;
	TUniquePtr<FTokenCall> Call;
};
