// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "ListenHost.h"

#include <netdb.h>
#include <netinet/in.h>
#include <optional>

// In all spellings in which the system takes it, with IPv4 inside of IPv6.
static std::optional<in6_addr> ReadAddress(const std::string& Host)
{
	addrinfo Hints{};
	Hints.ai_flags = AI_NUMERICHOST | AI_V4MAPPED;
	Hints.ai_family = AF_INET6;
	addrinfo* Found = nullptr;
	if (::getaddrinfo(Host.c_str(), nullptr, &Hints, &Found) != 0)
	{
		return std::nullopt;
	}
	const in6_addr Address = reinterpret_cast<const sockaddr_in6*>(Found->ai_addr)->sin6_addr;
	::freeaddrinfo(Found);
	return Address;
}

bool IsLoopbackHost(const std::string& Host)
{
	const std::optional<in6_addr> Address = ReadAddress(Host);
	return Address ? IN6_IS_ADDR_LOOPBACK(&*Address) || (IN6_IS_ADDR_V4MAPPED(&*Address) && Address->s6_addr[12] == 127)
				   : Host == "localhost";
}

bool IsWildcardHost(const std::string& Host)
{
	const std::optional<in6_addr> Address = ReadAddress(Host);
	return Address && (IN6_IS_ADDR_UNSPECIFIED(&*Address) || (IN6_IS_ADDR_V4MAPPED(&*Address) && Address->s6_addr32[3] == INADDR_ANY));
}
