// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "AuthenticationService.h"

// The one user of this machine, signed in from the start. Signing out twice, or in twice, changes and tells nothing the second time.
class ULocalAuthenticationService final : public UAuthenticationService
{
public:
	bool IsAuthenticated() const override { return bSignedIn; }
	void StartLogin() override { SetSignedIn(true); }
	void Logout() override { SetSignedIn(false); }

private:
	void SetSignedIn(bool bInSignedIn);

	bool bSignedIn = true;
};
