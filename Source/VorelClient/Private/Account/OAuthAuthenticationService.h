// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Account/LoginOptions.h"
#include "AuthenticationService.h"
#include "Containers/Ticker.h"

class FAuthorizationMetadata;
class FLogin;
class FLoginSession;
class IAccessTokenSource;
struct FTokenSet;

// Signs in through the system's browser. However a login ends, the delegate fires, in a frame of its own; why it failed is logged for the
// user to LogVorelAccount.
class UOAuthAuthenticationService final : public UAuthenticationService
{
public:
	UOAuthAuthenticationService();
	~UOAuthAuthenticationService() override;

	// Before anything else, once. Whoever was signed in at the end of the last run is signed in at once; nothing is asked for that.
	void Initialize(const FLoginOptions& InOptions);
	// Ends all that is under way, in silence.
	void Shutdown();

	bool IsAuthenticated() const override;
	// Gives up the login that is under way, whose redirect finds nobody from then on.
	void StartLogin() override;
	void Logout() override;

	// Both live from Initialize to Shutdown.
	IAccessTokenSource& GetTokens() const;
	FAuthorizationMetadata& GetMetadata() const;

private:
	void HandleLoginEnded(const TOptional<FTokenSet>& Tokens, const FText& Failure);
	void TellLater();
	bool Tell(float DeltaTime);

	FLoginOptions Options;
	TUniquePtr<FAuthorizationMetadata> Metadata;
	TUniquePtr<FLoginSession> Session;
	TUniquePtr<FLogin> Login;
	FTSTicker::FDelegateHandle Frame;
};
