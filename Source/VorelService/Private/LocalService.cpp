// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "LocalService.h"

#include "Accounts/Secrets.h"
#include "Accounts/ServiceDatabase.h"
#include "Guide/Guide.h"
#include "Http/HttpServer.h"
#include "ListenHost.h"
#include "Routes.h"
#include "ServiceParts.h"

namespace
{
// What must not be started, as a sentence; else empty.
std::string FindFault(const FLocalServiceOptions& Options, std::string& OutPublicOrigin)
{
	if (!PrepareSecrets())
	{
		return "This system has no source of random numbers.";
	}
	if (!Options.PublicUrl.empty() && !ReadOrigin(Options.PublicUrl, OutPublicOrigin))
	{
		return "The public address has to be a scheme, a host and a port alone, like https://vorel.example.org.";
	}
	if (MakeOrigin(Options.ListenHost, Options.Port).empty())
	{
		return "The service can't listen at " + Options.ListenHost + ", since no browser could reach it there.";
	}
	if (!Options.bPasswords && !(IsLoopbackHost(Options.ListenHost) && Options.PublicUrl.empty()))
	{
		return "Without passwords the service is for this machine alone, and listens on no other address.";
	}
	return Options.PublicUrl.empty() && IsWildcardHost(Options.ListenHost)
			   ? "A service that listens at all addresses has to know the public address by which it is reached."
			   : "";
}

std::string DescribeTakenPort(const FLocalServiceOptions& Options)
{
	return Options.Port == 0 ? "The service finds no free port at " + Options.ListenHost + "."
							 : "The service can't listen at " + Options.ListenHost + ", port " + std::to_string(Options.Port) +
								   ". Another program may use it.";
}
} // namespace

class FLocalService::FRunning
{
public:
	FRunning(const FLocalServiceOptions& Options, std::unique_ptr<FGuide> Guide, std::unique_ptr<FServiceDatabase> Database,
		std::unique_ptr<FHttpServer> InServer, int InPort, const FOwnAddresses& Addresses)
		: Port(InPort)
		, Parts(Options, std::move(Guide), std::move(Database), Addresses.GetMain())
		, Server(std::move(InServer))
	{
		Server->Run(MakeRoutes(Parts), Addresses);
	}

	~FRunning()
	{
		Parts.StopSignal.Stop();
		Server->Stop();
	}

	const std::string& GetAddress() const { return Parts.Address; }

	const int Port;

private:
	FServiceParts Parts;
	const std::unique_ptr<FHttpServer> Server;
};

std::unique_ptr<FLocalService> FLocalService::Start(const FLocalServiceOptions& Options, std::string& OutError)
{
	std::string PublicOrigin;
	OutError = FindFault(Options, PublicOrigin);
	std::unique_ptr<FGuide> Guide = OutError.empty() ? FGuide::Load(Options.GuideFolder, OutError) : nullptr;
	std::unique_ptr<FServiceDatabase> Database = Guide ? OpenServiceDatabase(Options.DataFile, OutError) : nullptr;
	if (!Database)
	{
		return nullptr;
	}
	auto Server = std::make_unique<FHttpServer>(Options.MaxConnections, Options.MaxRequestBytes);
	const int Port = Server->Bind(Options.ListenHost, Options.Port);
	if (Port < 0)
	{
		OutError = DescribeTakenPort(Options);
		return nullptr;
	}
	return std::unique_ptr<FLocalService>(new FLocalService(std::make_unique<FRunning>(
		Options, std::move(Guide), std::move(Database), std::move(Server), Port, FOwnAddresses(Options.ListenHost, Port, PublicOrigin))));
}

FLocalService::FLocalService(std::unique_ptr<FRunning> InRunning)
	: Running(std::move(InRunning))
{
}

FLocalService::~FLocalService() = default;

const std::string& FLocalService::GetAddress() const
{
	return Running->GetAddress();
}

int FLocalService::GetPort() const
{
	return Running->Port;
}
