// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Accounts/BillingHandlers.h"

#include "Http/FormFields.h"
#include "Http/Replies.h"
#include "Pages/Pages.h"
#include "ServiceParts.h"

namespace
{
std::string GetFormPurpose(const FAccount& Account)
{
	return "billing " + std::to_string(Account.Id);
}
} // namespace

void FBillingHandlers::Show(const httplib::Request& Request, httplib::Response& Response) const
{
	Send(Response, FindAccount(Request), "");
}

void FBillingHandlers::TopUp(const httplib::Request& Request, httplib::Response& Response) const
{
	if (const std::optional<FAccount> Account = CheckForm(Request, Response))
	{
		Parts.Credits.TopUp(Account->Id);
		Send(Response, Account, "Your credits are full again.");
	}
}

void FBillingHandlers::SignOut(const httplib::Request& Request, httplib::Response& Response) const
{
	if (CheckForm(Request, Response))
	{
		Parts.Sessions.End(Request, Response);
		SendElsewhere(Response, "/billing");
	}
}

std::optional<FAccount> FBillingHandlers::FindAccount(const httplib::Request& Request) const
{
	return Parts.Options.bPasswords ? Parts.Sessions.Find(Request, Parts.Now()) : Parts.Accounts.GetLocalAccount();
}

std::optional<FAccount> FBillingHandlers::CheckForm(const httplib::Request& Request, httplib::Response& Response) const
{
	const std::optional<FAccount> Account = FindAccount(Request);
	if (!Account || !IsForm(Request) ||
		!Parts.FormTokens.IsGood(GetField(Request.params, "form_token"), GetFormPurpose(*Account), Parts.Now()))
	{
		SendPage(Response, 400, MakeErrorPage("Nothing has changed", "The page was open for too long. Please load it again."));
		return std::nullopt;
	}
	return Account;
}

void FBillingHandlers::Send(httplib::Response& Response, const std::optional<FAccount>& Account, const std::string& Notice) const
{
	FBillingPage Page;
	if (Account)
	{
		const std::int64_t Now = Parts.Now();
		Page = {.AccountName = Account->Name,
			.Credits = Parts.Credits.GetLeft(Account->Id, Now),
			.DailyCredits = Parts.Credits.GetDaily(),
			.Hidden = {{"form_token", Parts.FormTokens.Make(GetFormPurpose(*Account), Now)}},
			.Notice = Notice,
			.bSignedIn = true,
			.bCanSignOut = Parts.Options.bPasswords};
	}
	SendPage(Response, 200, MakeBillingPage(Page));
}
