// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "AuthenticationService.h"
#include "Containers/Ticker.h"

class FAuthorizationMetadata;
class FLogin;
class FLoginSession;
class IAccessTokenSource;
struct FLoginOptions;

// Signs in through the system's browser. However a login ends, the delegate fires, in a frame of its own; why it failed is logged for the
// user to LogVorelAccount.
class UOAuthAuthenticationService final : public UAuthenticationService
{
public:
	UOAuthAuthenticationService();
	~UOAuthAuthenticationService() override;

	// Before anything else, once. Whoever was signed in at the end of the last run is signed in at once; nothing is asked for that.
	void Initialize(const FLoginOptions& Options);
	// Ends all that is under way, in silence. Nobody is signed in from then on.
	void Shutdown();

	bool IsAuthenticated() const override;
	void StartLogin() override;
	void Logout() override;

	// Both live until Shutdown.
	IAccessTokenSource& GetTokens() const;
	FAuthorizationMetadata& GetMetadata() const;
};
