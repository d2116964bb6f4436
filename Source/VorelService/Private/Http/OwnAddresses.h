// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <string>
#include <vector>

// In the one way to write it, from 1 on.
bool IsPort(const std::string& Text);

// False for what is more or less than scheme, host and port. OutOrigin: in small letters, without a port that goes without saying.
bool ReadOrigin(const std::string& Url, std::string& OutOrigin);

// Of a host, IPv6 without brackets, as it is reached without TLS; empty where browsers could not name it. Port 0 is left out.
std::string MakeOrigin(const std::string& Host, int Port);

// The names by which the service lets itself be called. A web page must not reach it by another name that it points to this machine.
class FOwnAddresses
{
public:
	// ListenHost: one that has an origin. PublicOrigin: as read, or empty.
	FOwnAddresses(const std::string& ListenHost, int Port, const std::string& PublicOrigin);

	// The public origin, else where the service listens.
	const std::string& GetMain() const { return Origins.front(); }

	bool IsOwnHost(const std::string& HostHeader) const;

	// Whether a request to that host comes from a page of this service. By the name "localhost" two machines may mean two services.
	bool IsOwnOrigin(const std::string& OriginHeader, const std::string& HostHeader) const;

private:
	std::vector<std::string> Origins;
};
