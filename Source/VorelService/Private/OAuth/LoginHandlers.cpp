// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "OAuth/LoginHandlers.h"

#include "Http/FormFields.h"
#include "Http/Replies.h"
#include "Pages/Pages.h"
#include "ServiceParts.h"

namespace
{
constexpr const char* FormPurpose = "login";
constexpr const char* PageTooOld = "This page was open for too long. Please try again.";
} // namespace

void FLoginHandlers::Show(const httplib::Request& Request, httplib::Response& Response) const
{
	std::optional<FAuthorizationRequest> Program;
	if (!ReadProgram(Request, Response, Program))
	{
		return;
	}
	if (!Program && !Parts.Options.bPasswords)
	{
		SendElsewhere(Response, "/billing");
		return;
	}
	SendForm(Program, {}, "", Response);
}

void FLoginHandlers::Take(const httplib::Request& Request, httplib::Response& Response) const
{
	std::optional<FAuthorizationRequest> Program;
	if (!IsForm(Request))
	{
		SendPage(Response, 400, MakeErrorPage("Not signed in", "Please use the form of the sign-in page."));
		return;
	}
	if (!ReadProgram(Request, Response, Program))
	{
		return;
	}
	if (Program && GetField(Request.params, "action") == "cancel")
	{
		SendElsewhere(Response, Program->MakeAnswer("error", "access_denied", Parts.Address));
		return;
	}
	const std::int64_t Now = Parts.Now();
	const std::string Name = GetField(Request.params, "name");
	const bool bOwnPage = Parts.FormTokens.IsGood(GetField(Request.params, "form_token"), FormPurpose, Now);
	const FSignInResult Result =
		bOwnPage ? Parts.SignIn.Try(Name, GetField(Request.params, "password"), Now) : FSignInResult{std::nullopt, PageTooOld};
	if (Result.Account)
	{
		Finish(*Result.Account, Program, Response);
		return;
	}
	SendForm(Program, Result, Name, Response);
}

bool FLoginHandlers::ReadProgram(
	const httplib::Request& Request, httplib::Response& Response, std::optional<FAuthorizationRequest>& OutProgram) const
{
	const httplib::Params& Fields = Request.params;
	if (Fields.count("client_id") + Fields.count("redirect_uri") + Fields.count("response_type") == 0)
	{
		return true;
	}
	OutProgram = ReadAuthorizationRequest(Fields);
	if (!OutProgram->Problem.empty())
	{
		SendPage(Response, 400, MakeErrorPage("Not signed in", OutProgram->Problem));
		return false;
	}
	if (!OutProgram->Error.empty())
	{
		SendElsewhere(Response, OutProgram->MakeAnswer("error", OutProgram->Error, Parts.Address));
		return false;
	}
	return true;
}

void FLoginHandlers::Finish(const FAccount& Account, const std::optional<FAuthorizationRequest>& Program, httplib::Response& Response) const
{
	if (Program)
	{
		SendElsewhere(Response, Program->MakeAnswer("code", Parts.Tokens.AddCode(Account, Program->Terms, Parts.Now()), Parts.Address));
		return;
	}
	if (Parts.Options.bPasswords)
	{
		Parts.Sessions.Begin(Account, Parts.Now(), Response);
	}
	SendElsewhere(Response, "/billing");
}

void FLoginHandlers::SendForm(const std::optional<FAuthorizationRequest>& Program, const FSignInResult& Failure,
	const std::string& NameTyped, httplib::Response& Response) const
{
	FLoginPage Page{.AccountName = Parts.Options.bPasswords ? std::string() : Parts.Accounts.GetLocalAccount().Name,
		.NameTyped = NameTyped,
		.Problem = Failure.Problem,
		.bAskPassword = Parts.Options.bPasswords,
		.ClientName = "Vorel AI",
		.Hidden = Program ? Program->GetFields() : FHiddenFields(),
		.bForProgram = Program.has_value()};
	Page.Hidden.emplace_back("form_token", Parts.FormTokens.Make(FormPurpose, Parts.Now()));
	if (Failure.RetryAfter > 0)
	{
		Response.set_header("Retry-After", std::to_string(Failure.RetryAfter));
	}
	SendPage(Response, Failure.RetryAfter > 0 ? 429 : Failure.Problem.empty() ? 200 : 400, MakeLoginPage(Page));
}
