// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Accounts/AccountStore.h"

#include <httplib.h>

struct FServiceParts;

// The page of credits, for whoever is signed in in the browser, or for the one local account.
class FBillingHandlers
{
public:
	explicit FBillingHandlers(FServiceParts& InParts)
		: Parts(InParts)
	{
	}

	void Show(const httplib::Request& Request, httplib::Response& Response) const;
	void TopUp(const httplib::Request& Request, httplib::Response& Response) const;
	void SignOut(const httplib::Request& Request, httplib::Response& Response) const;

private:
	std::optional<FAccount> FindAccount(const httplib::Request& Request) const;

	// Nothing where the form is no such account's from a page of ours; the response then says so.
	std::optional<FAccount> CheckForm(const httplib::Request& Request, httplib::Response& Response) const;
	void Send(httplib::Response& Response, const std::optional<FAccount>& Account, const std::string& Notice) const;

	FServiceParts& Parts;
};
