// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Accounts/SignIn.h"

#include "Accounts/AccountName.h"

FSignIn::FSignIn(FAccountStore& InAccounts, bool bPasswords)
	: Accounts(InAccounts)
{
	if (bPasswords)
	{
		Passwords.emplace();
	}
}

FSignInResult FSignIn::Try(const std::string& Typed, const std::string& Password, std::int64_t Now)
{
	FAccountName Name;
	std::string Problem;
	ReadAccountName(Typed, Name, Problem);
	if (const int Pause = Limiter.Begin(Name.Key, Now))
	{
		const std::string Wait = Pause == 1 ? "a second" : std::to_string(Pause) + " seconds";
		return {std::nullopt, "Too many tries. Please wait " + Wait + " and try again.", Pause};
	}
	FSignInResult Result = Passwords ? CheckPassword(Name, Password) : CheckLocal(Name, Problem);
	if (Result.Account)
	{
		Limiter.Succeed(Name.Key);
	}
	return Result;
}

FSignInResult FSignIn::CheckLocal(const FAccountName& Name, const std::string& Problem)
{
	const FAccount Known = Accounts.GetLocalAccount();
	if (Known.Name.empty() && !Problem.empty())
	{
		return {std::nullopt, Problem};
	}
	const FAccount Named = Known.Name.empty() ? Accounts.NameLocalAccount(Name) : Known;
	return Named.Name.empty() ? FSignInResult{std::nullopt, "That name is taken here."} : FSignInResult{Named};
}

FSignInResult FSignIn::CheckPassword(const FAccountName& Name, const std::string& Password)
{
	// Whoever guesses learns neither from the words nor from the time whether there is such a name.
	const std::optional<FAccount> Known = Accounts.Find(Name);
	if (!Passwords->IsRight(Password, Known ? Known->PasswordHash : std::string()))
	{
		return {std::nullopt, WrongNameOrPassword};
	}
	return {Known};
}
