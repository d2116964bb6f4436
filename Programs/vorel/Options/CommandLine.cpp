// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Options/CommandLine.h"

#include "Arguments/OptionTable.h"
#include "Arguments/ReadNumber.h"
#include "QtConversion.h"

#include <QHostAddress>
#include <QUrl>

namespace
{
bool SetText(FString& Target, const FString& Value)
{
	Target = Value;
	return !Value.IsEmpty();
}

bool SetSize(FCommandLine& Line, const FString& Value)
{
	const TOptional<FContentSize> Size = FContentSize::Read(Value);
	Line.Size = Size.Get(FContentSize());
	return Size.IsSet();
}

bool SetScale(FCommandLine& Line, const FString& Value)
{
	constexpr double Least = 0.25;
	constexpr double Most = 8.0;
	Line.Scale = ReadNumber::Decimal(Value);
	return Line.Scale && *Line.Scale >= Least && *Line.Scale <= Most;
}

bool SetAssistantUrl(FCommandLine& Line, const FString& Value)
{
	const bool bWeb = Value.StartsWith(TEXT("http://")) || Value.StartsWith(TEXT("https://"));
	return bWeb && SetText(Line.AssistantUrl, Value);
}

bool IsLoopback(const QString& Host)
{
	return Host == QLatin1String("localhost") || QHostAddress(Host).isLoopback();
}

// Secrets go there: encrypted, or to this machine.
bool SetSafeUrl(FString& Target, const FString& Value, bool bPath)
{
	const QUrl Url(ToQString(Value), QUrl::StrictMode);
	const bool bSafe = Url.scheme() == QLatin1String("https") || (Url.scheme() == QLatin1String("http") && IsLoopback(Url.host()));
	const bool bPlain = Url.userInfo().isEmpty() && !Url.hasQuery() && !Url.hasFragment();
	const bool bOrigin = Url.path().isEmpty() || Url.path() == QLatin1String("/");
	Target = Value;
	return Url.isValid() && !Url.host().isEmpty() && bSafe && bPlain && (bPath || bOrigin);
}

bool SetServiceUrl(FCommandLine& Line, const FString& Value)
{
	const bool bSafe = SetSafeUrl(Line.ServiceUrl, Value, false);
	// As the service writes it: scheme and host in small letters.
	Line.ServiceUrl = ToFString(QUrl(ToQString(Value)).toString(QUrl::RemovePath));
	return bSafe;
}

bool SetIssuer(FCommandLine& Line, const FString& Value)
{
	return SetSafeUrl(Line.Issuer, Value, true);
}

bool SetDailyCredits(FCommandLine& Line, const FString& Value)
{
	constexpr int32 Most = 1000000;
	Line.DailyCredits = ReadNumber::Integer(Value);
	return Line.DailyCredits && *Line.DailyCredits >= 0 && *Line.DailyCredits <= Most;
}

bool SetFormat(FCommandLine& Line, const FString& Value)
{
	Line.ExportFormat = Value == TEXT("json") ? EExportFormat::Json : EExportFormat::Markdown;
	return Value == TEXT("json") || Value == TEXT("md");
}

// clang-format off
const TOption<FCommandLine> Options[] = {
	{TEXT("--offscreen"), nullptr, TEXT("Use no display."),
		[](FCommandLine& Line, const FString&) { return Line.bOffscreen = true; }},
	{TEXT("--size"), TEXT("WxH"), TEXT("Size of the tab's content in units (1000x800)."), &SetSize,
		TEXT("a width and a height from 1 to 8192, like 1000x800")},
	{TEXT("--scale"), TEXT("F"), TEXT("Device pixels per unit (what the desktop says, 1 offscreen)."), &SetScale,
		TEXT("a number from 0.25 to 8")},
	{TEXT("--data-dir"), TEXT("DIR"), TEXT("Folder for settings and data (the user's own data folder)."),
		[](FCommandLine& Line, const FString& Value) { return SetText(Line.DataDir, Value); }, TEXT("a folder")},
	{TEXT("--assistant"), TEXT("URL"), TEXT("Base address of a server for streaming chat completions (the built-in guide)."), &SetAssistantUrl,
		TEXT("an address that begins with http:// or https://")},
	{TEXT("--model"), TEXT("NAME"), TEXT("Model to ask for there (the first one that the server names)."),
		[](FCommandLine& Line, const FString& Value) { return SetText(Line.Model, Value); }, TEXT("a name")},
	{TEXT("--service"), TEXT("URL"), TEXT("Address of another service to sign in to (one of its own)."), &SetServiceUrl,
		TEXT("https:// and a host, or http:// and this machine, with nothing behind it")},
	{TEXT("--issuer"), TEXT("URL"), TEXT("Sign in at this authorization server (the service itself)."), &SetIssuer,
		TEXT("an address that begins with https://, or with http:// on this machine, without a query")},
	{TEXT("--client-id"), TEXT("ID"), TEXT("What the program is called there."),
		[](FCommandLine& Line, const FString& Value) { return SetText(Line.ClientId, Value); }, TEXT("a name")},
	{TEXT("--daily-credits"), TEXT("N"), TEXT("Credits a day of the program's own service (100)."), &SetDailyCredits,
		TEXT("a whole number from 0 to 1000000")},
	{TEXT("--play"), TEXT("FILE"), TEXT("Do what a play file says, and end."),
		[](FCommandLine& Line, const FString& Value) { return SetText(Line.PlayFile, Value); }, TEXT("a file")},
	{TEXT("--format"), TEXT("md|json"), TEXT("What conversations export writes (md)."), &SetFormat, TEXT("md or json")},
	{TEXT("--help"), nullptr, TEXT("Print this text, and end."),
		[](FCommandLine& Line, const FString&) { return Line.bHelp = true; }},
	{TEXT("--version"), nullptr, TEXT("Print the version, and end."),
		[](FCommandLine& Line, const FString&) { return Line.bVersion = true; }},
};
// clang-format on

const FProgramCommandTable Commands = {TEXT("conversations"),
	{
		{TEXT("list"), nullptr, TEXT("One a line, newest first: id, time, mode and title, separated by tabs.")},
		{TEXT("show"), TEXT("ID"), TEXT("Print a conversation.")},
		{TEXT("export"), TEXT("ID"), TEXT("Print it as Markdown, or as JSON with --format json.")},
		{TEXT("import"), TEXT("FILE"), TEXT("Add a conversation from such JSON, and print its id; a taken id gives way to a new one.")},
		{TEXT("delete"), TEXT("ID"), TEXT("Delete a conversation.")},
	}};

// What is wrong with options that are right one by one, or nothing.
FString FindContradiction(const FCommandLine& Line)
{
	if (Line.Issuer.IsEmpty() != Line.ClientId.IsEmpty())
	{
		return Line.Issuer.IsEmpty() ? TEXT("--client-id needs --issuer too") : TEXT("--issuer needs --client-id too");
	}
	const bool bNobodysCredits = Line.DailyCredits && !Line.ServiceUrl.IsEmpty();
	return bNobodysCredits ? TEXT("--daily-credits is for the program's own service, which --service replaces") : TEXT("");
}
} // namespace

TOptional<FCommandLine> FCommandLine::Parse(const TArray<FString>& Arguments, FString& OutError)
{
	FCommandLine Line;
	TArray<FString> Words;
	OutError = ReadArguments(Options, Arguments, Line, Words);
	if (OutError.IsEmpty() && !Line.bHelp)
	{
		OutError = Commands.Read(Words, Line.Command);
	}
	if (OutError.IsEmpty() && !Line.bHelp)
	{
		OutError = FindContradiction(Line);
	}
	return OutError.IsEmpty() ? TOptional<FCommandLine>(Line) : NullOpt;
}

FString FCommandLine::GetHelp()
{
	return TEXT("Usage: vorel [options]\n"
				"       vorel [options] conversations COMMAND\n\n"
				"Opens the editor window with the assistant's tab in its Tools menus, or works on the stored conversations.\n\n") +
		   MakeHelp(Options) + TEXT("\nCommands, which need no display; for an ID that begins like an option put -- before it:\n\n") +
		   Commands.MakeHelp() +
		   TEXT("\nWithout --assistant and without such an entry in the settings, the service answers: the built-in guide, or what "
				"--service\n"
				"names. An assistant's key is taken from the environment variable VOREL_ASSISTANT_KEY.\n"
				"Exit status: 0, or 1 where a step of a play file or a command failed, or 2 where an option or a file can't be read.\n");
}
