// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "RunService.h"

#include "AccountDirectory.h"
#include "ListenHost.h"
#include "LocalService.h"
#include "Misc/Paths.h"
#include "ServiceCommandLine.h"

#include <csignal>
#include <cstdio>

namespace
{
// Streamed answers that are under way at the same time.
constexpr std::size_t MaxConnections = 64;

// The signals that end the program wait until they are asked for, in all threads that start after this.
class FEndSignals
{
public:
	FEndSignals()
	{
		::sigemptyset(&Signals);
		::sigaddset(&Signals, SIGINT);
		::sigaddset(&Signals, SIGTERM);
		::pthread_sigmask(SIG_BLOCK, &Signals, nullptr);
	}

	void Wait() const
	{
		int Signal = 0;
		::sigwait(&Signals, &Signal);
	}

private:
	sigset_t Signals;
};

FLocalServiceOptions MakeOptions(const FServiceCommandLine& Line, const FString& DataFile)
{
	FLocalServiceOptions Options;
	Options.GuideFolder = TCHAR_TO_UTF8(FPaths::ProjectDir() / TEXT("Source/VorelService/Content/Guide"));
	Options.MaxConnections = MaxConnections;
	Options.DataFile = TCHAR_TO_UTF8(DataFile);
	Options.bPasswords = true;
	Options.ListenHost = TCHAR_TO_UTF8(Line.Listen.Host);
	Options.Port = Line.Listen.Port;
	Options.PublicUrl = TCHAR_TO_UTF8(Line.PublicUrl);
	Options.DailyCredits = Line.DailyCredits;
	Options.Version = TCHAR_TO_UTF8(Line.PluginVersion);
	return Options;
}

void WarnOfOpenNetwork(const FServiceCommandLine& Line)
{
	const bool bEncrypted = Line.PublicUrl.StartsWith(TEXT("https://"));
	if (!bEncrypted && !IsLoopbackHost(TCHAR_TO_UTF8(Line.Listen.Host)))
	{
		std::fputs(
			"vorel-service: warning: passwords and tokens cross the network as plain text; put a proxy with TLS in front and name it "
			"with --public-url https://...\n",
			stderr);
	}
}

void TellAddress(const FServiceCommandLine& Line, const FLocalService& Service)
{
	const FListenAddress Listen{Line.Listen.Host, Service.GetPort()};
	const std::string Place = Line.PublicUrl.IsEmpty() ? std::string() : std::string(TCHAR_TO_UTF8(Listen.ToString())) + " for ";
	std::printf("vorel-service: listening at %s%s\n", Place.c_str(), Service.GetAddress().c_str());
	std::fflush(stdout);
}

void HintAtAccounts(const std::string& DataFile)
{
	std::string Error;
	std::vector<std::string> Names;
	const std::unique_ptr<FAccountDirectory> Accounts = FAccountDirectory::Open(DataFile, Error);
	if (Accounts && Accounts->List(Names, Error) && Names.empty())
	{
		std::fputs("vorel-service: there are no accounts yet; add one with: vorel-service accounts add NAME\n", stderr);
	}
}
} // namespace

bool RunService(const FServiceCommandLine& Line, const FString& DataFile, FString& OutError)
{
	const FEndSignals EndSignals;
	const FLocalServiceOptions Options = MakeOptions(Line, DataFile);
	std::string Error;
	const std::unique_ptr<FLocalService> Service = FLocalService::Start(Options, Error);
	if (!Service)
	{
		OutError = FString(UTF8_TO_TCHAR(Error.c_str()));
		return false;
	}
	WarnOfOpenNetwork(Line);
	HintAtAccounts(Options.DataFile);
	TellAddress(Line, *Service);
	EndSignals.Wait();
	return true;
}
