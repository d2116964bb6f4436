// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Accounts/BillingHandlers.h"

#include "Http/FormFields.h"
#include "Http/Replies.h"
#include "Pages/Pages.h"
#include "ServiceParts.h"

namespace
{
std::optional<FAccount> FindReader(FServiceParts& Parts, const httplib::Request& Request)
{
	return Parts.Options.bPasswords ? Parts.Sessions.Find(Request, Parts.Now()) : Parts.Accounts.GetLocalAccount();
}

std::string GetFormPurpose(const FAccount& Reader)
{
	return "billing " + std::to_string(Reader.Id);
}

// Nothing where the form is not the reader's, from a page of ours; the response then says so.
std::optional<FAccount> FindSender(FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response)
{
	const std::optional<FAccount> Reader = FindReader(Parts, Request);
	const std::string Token = IsForm(Request) ? GetField(Request.params, "form_token") : std::string();
	if (!Reader || !Parts.FormTokens.IsGood(Token, GetFormPurpose(*Reader), Parts.Now()))
	{
		SendPage(Response, 400, MakeErrorPage("Nothing has changed", "The page was open for too long. Please load it again."));
		return std::nullopt;
	}
	return Reader;
}

void SendBilling(FServiceParts& Parts, httplib::Response& Response, const std::optional<FAccount>& Reader, const std::string& Notice)
{
	FBillingPage Page;
	if (Reader)
	{
		const std::int64_t Now = Parts.Now();
		Page = {.AccountName = Reader->Name,
			.Credits = Parts.Credits.GetLeft(Reader->Id, Now),
			.DailyCredits = Parts.Credits.GetDaily(),
			.Hidden = {{"form_token", Parts.FormTokens.Make(GetFormPurpose(*Reader), Now)}},
			.Notice = Notice,
			.bSignedIn = true,
			.bCanSignOut = Parts.Options.bPasswords};
	}
	SendPage(Response, 200, MakeBillingPage(Page));
}
} // namespace

void ShowBilling(FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response)
{
	SendBilling(Parts, Response, FindReader(Parts, Request), "");
}

void TopUp(FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response)
{
	if (const std::optional<FAccount> Sender = FindSender(Parts, Request, Response))
	{
		Parts.Credits.TopUp(Sender->Id);
		SendBilling(Parts, Response, Sender, "Your credits are full again.");
	}
}

void SignOut(FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response)
{
	if (FindSender(Parts, Request, Response))
	{
		Parts.Sessions.End(Request, Response);
		SendElsewhere(Response, "/billing");
	}
}
