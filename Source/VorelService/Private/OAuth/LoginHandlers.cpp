// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "OAuth/LoginHandlers.h"

#include "Http/FormFields.h"
#include "Http/Replies.h"
#include "OAuth/AuthorizationRequest.h"
#include "Pages/Pages.h"
#include "ServiceParts.h"

namespace
{
using FProgram = std::optional<FAuthorizationRequest>;

constexpr const char* FormPurpose = "login";

// The program that the user comes from, if any. False where what it asks for is wrong; the response then says so, to it or to the user.
bool ReadProgram(FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response, FProgram& OutProgram)
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

void SendForm(FServiceParts& Parts, httplib::Response& Response, const FProgram& Program, const FSignInResult& Failure = {},
	const std::string& NameTyped = "")
{
	FLoginPage Page{.AccountName = Parts.Options.bPasswords ? std::string() : Parts.Accounts.GetLocalAccount().Name,
		.NameTyped = NameTyped,
		.Problem = Failure.Problem,
		.bAskPassword = Parts.Options.bPasswords,
		.Hidden = Program ? Program->GetFields() : FHiddenFields(),
		.bForProgram = Program.has_value()};
	Page.Hidden.emplace_back("form_token", Parts.FormTokens.Make(FormPurpose, Parts.Now()));
	if (Failure.RetryAfter > 0)
	{
		Response.set_header("Retry-After", std::to_string(Failure.RetryAfter));
	}
	const int Refused = Failure.RetryAfter > 0 ? 429 : 400;
	SendPage(Response, Failure.Problem.empty() ? 200 : Refused, MakeLoginPage(Page), Program ? Program->Terms.RedirectUri : "");
}

FSignInResult TrySignIn(FServiceParts& Parts, const httplib::Params& Fields)
{
	if (!Parts.FormTokens.IsGood(GetField(Fields, "form_token"), FormPurpose, Parts.Now()))
	{
		return {.Problem = "This page was open for too long. Please try again."};
	}
	return Parts.SignIn.Try(GetField(Fields, "name"), GetField(Fields, "password"), Parts.Now());
}

// Where the browser goes on. Nowhere where the account was changed or removed while the password was compared.
std::optional<std::string> Welcome(
	FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response, const FProgram& Program, const FAccount& Account)
{
	if (Program)
	{
		const std::optional<std::string> Code = Parts.Tokens.AddCode(Account, Program->Terms, Parts.Now());
		return Code ? std::optional(Program->MakeAnswer("code", *Code, Parts.Address)) : std::nullopt;
	}
	const bool bWelcome = !Parts.Options.bPasswords || Parts.Sessions.Begin(Account, Parts.Now(), Request, Response);
	return bWelcome ? std::optional<std::string>("/billing") : std::nullopt;
}
} // namespace

void ShowLogin(FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response)
{
	FProgram Program;
	if (!ReadProgram(Parts, Request, Response, Program))
	{
		return;
	}
	// Where there is one account, a browser has nothing to sign in to.
	Program || Parts.Options.bPasswords ? SendForm(Parts, Response, Program) : SendElsewhere(Response, "/billing");
}

void TakeLogin(FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response)
{
	FProgram Program;
	if (!IsForm(Request))
	{
		SendPage(Response, 400, MakeErrorPage("Not signed in", "Please use the form of the sign-in page."));
		return;
	}
	if (!ReadProgram(Parts, Request, Response, Program))
	{
		return;
	}
	if (Program && GetField(Request.params, "action") == "cancel")
	{
		SendElsewhere(Response, Program->MakeAnswer("error", "access_denied", Parts.Address));
		return;
	}
	FSignInResult Result = TrySignIn(Parts, Request.params);
	if (Result.Account)
	{
		if (const std::optional<std::string> Location = Welcome(Parts, Request, Response, Program, *Result.Account))
		{
			SendElsewhere(Response, *Location);
			return;
		}
		Result.Problem = WrongNameOrPassword;
	}
	SendForm(Parts, Response, Program, Result, GetField(Request.params, "name"));
}
