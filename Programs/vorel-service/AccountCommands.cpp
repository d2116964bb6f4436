// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "AccountCommands.h"

#include "AccountDirectory.h"
#include "PasswordInput.h"

#include <cstdio>

namespace
{
bool PrintNames(const FAccountDirectory& Accounts, std::string& OutError)
{
	std::vector<std::string> Names;
	const bool bListed = Accounts.List(Names, OutError);
	for (const std::string& Name : Names)
	{
		std::printf("%s\n", Name.c_str());
	}
	return bListed;
}

bool Run(FAccountDirectory& Accounts, const FString& Verb, const std::string& Name, const std::string& Password, std::string& OutError)
{
	return Verb.Equals(TEXT("list"))     ? PrintNames(Accounts, OutError)
		   : Verb.Equals(TEXT("remove")) ? Accounts.Remove(Name, OutError)
		   : Verb.Equals(TEXT("add"))    ? Accounts.Add(Name, Password, OutError)
										 : Accounts.SetPassword(Name, Password, OutError);
}
} // namespace

bool RunAccountCommand(const TArray<FString>& Command, const FString& DataFile, FString& OutError)
{
	std::string Error;
	const std::unique_ptr<FAccountDirectory> Accounts = FAccountDirectory::Open(TCHAR_TO_UTF8(DataFile), Error);
	if (!Accounts)
	{
		OutError = FString(UTF8_TO_TCHAR(Error.c_str()));
		return false;
	}
	const bool bNeedsPassword = Command[0].Equals(TEXT("add")) || Command[0].Equals(TEXT("set-password"));
	const TOptional<std::string> Password = bNeedsPassword ? AskForPassword(OutError) : TOptional<std::string>(std::string());
	if (!Password)
	{
		return false;
	}
	const std::string Name = Command.Num() > 1 ? TCHAR_TO_UTF8(Command[1]) : "";
	const bool bDone = Run(*Accounts, Command[0], Name, *Password, Error);
	OutError = FString(UTF8_TO_TCHAR(Error.c_str()));
	return bDone;
}
