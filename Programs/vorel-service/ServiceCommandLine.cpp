// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "ServiceCommandLine.h"

#include "Arguments/OptionTable.h"
#include "Arguments/ReadNumber.h"
#include "SemanticVersion.h"

namespace
{
bool SetListen(FServiceCommandLine& Line, const FString& Value)
{
	const TOptional<FListenAddress> Address = FListenAddress::Read(Value);
	Line.Listen = Address.Get(Line.Listen);
	return Address.IsSet();
}

bool SetPublicUrl(FServiceCommandLine& Line, const FString& Value)
{
	Line.PublicUrl = Value;
	Line.PublicUrl.RemoveFromEnd(TEXT("/"));
	// The service itself looks at the rest.
	return Value.StartsWith(TEXT("http://")) || Value.StartsWith(TEXT("https://"));
}

bool SetDataDir(FServiceCommandLine& Line, const FString& Value)
{
	Line.DataDir = Value;
	return !Value.IsEmpty();
}

bool SetDailyCredits(FServiceCommandLine& Line, const FString& Value)
{
	constexpr int32 Most = 1'000'000;
	const TOptional<int32> Number = ReadNumber::Integer(Value);
	Line.DailyCredits = Number.Get(0);
	return Number && *Number >= 0 && *Number <= Most;
}

// A feed with anything else would be ignored by all that read it.
bool SetPluginVersion(FServiceCommandLine& Line, const FString& Value)
{
	Line.PluginVersion = Value;
	return FSemanticVersion::Parse(Value).IsSet();
}

// clang-format off
const TOption<FServiceCommandLine> Options[] = {
	{TEXT("--listen"), TEXT("HOST:PORT"), TEXT("Where to listen (127.0.0.1:8720); port 0 is any free one."), &SetListen,
		TEXT("a host and a port, like 127.0.0.1:8720 or [::1]:8720")},
	{TEXT("--public-url"), TEXT("URL"), TEXT("Where users reach it through a proxy, like https://vorel.example."), &SetPublicUrl,
		TEXT("an address that begins with http:// or https://")},
	{TEXT("--data-dir"), TEXT("DIR"), TEXT("Folder for accounts and logins (vorel-service in the user's own data folder)."), &SetDataDir,
		TEXT("a folder")},
	{TEXT("--daily-credits"), TEXT("N"), TEXT("Answers in agent mode for each account and day (100)."), &SetDailyCredits,
		TEXT("a whole number from 0 to 1000000")},
	{TEXT("--plugin-version"), TEXT("V"), TEXT("Version of the plugin to announce (" VOREL_VERSION ")."), &SetPluginVersion,
		TEXT("a semantic version, like 1.2.3")},
	{TEXT("--help"), nullptr, TEXT("Print this text, and end."),
		[](FServiceCommandLine& Line, const FString&) { return Line.bHelp = true; }},
	{TEXT("--version"), nullptr, TEXT("Print the version, and end."),
		[](FServiceCommandLine& Line, const FString&) { return Line.bVersion = true; }},
};
// clang-format on

const FProgramCommandTable Accounts = {
	TEXT("accounts"), {
						  {TEXT("list"), nullptr, TEXT("One name a line.")},
						  {TEXT("add"), TEXT("NAME"), TEXT("Add an account.")},
						  {TEXT("set-password"), TEXT("NAME"), TEXT("Set another password; whoever is signed in has to sign in again.")},
						  {TEXT("remove"), TEXT("NAME"), TEXT("Remove an account, with its logins.")},
					  }};
} // namespace

TOptional<FServiceCommandLine> FServiceCommandLine::Parse(const TArray<FString>& Arguments, FString& OutError)
{
	FServiceCommandLine Line;
	TArray<FString> Words;
	OutError = ReadArguments(Options, Arguments, Line, Words);
	if (OutError.IsEmpty() && !Line.bHelp)
	{
		OutError = Accounts.Read(Words, Line.Command);
	}
	return OutError.IsEmpty() ? TOptional<FServiceCommandLine>(Line) : NullOpt;
}

FString FServiceCommandLine::GetHelp()
{
	return TEXT("Usage: vorel-service [options]\n"
				"       vorel-service [options] accounts COMMAND\n\n"
				"Runs the service for several users, who reach it by vorel --service URL, or works on their accounts.\n\n") +
		   MakeHelp(Options) + TEXT("\nCommands, which work while the service runs too:\n\n") + Accounts.MakeHelp() +
		   TEXT("\nA password is asked for on the terminal; where standard input is none, it is its first line.\n"
				"The service ends at SIGINT and SIGTERM. Exit status: 0, or 2 with one line on stderr.\n");
}
