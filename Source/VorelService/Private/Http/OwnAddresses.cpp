// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Http/OwnAddresses.h"

#include <algorithm>
#include <optional>

namespace
{
std::string ToLower(std::string Text)
{
	std::transform(Text.begin(), Text.end(), Text.begin(),
		[](char Letter) { return Letter >= 'A' && Letter <= 'Z' ? static_cast<char>(Letter - 'A' + 'a') : Letter; });
	return Text;
}

bool IsHost(const std::string& Text)
{
	const bool bBracketed = Text.size() > 2 && Text.front() == '[' && Text.back() == ']';
	const std::string Name = bBracketed ? Text.substr(1, Text.size() - 2) : Text;
	const char* const Allowed = bBracketed ? "0123456789abcdef:." : "0123456789abcdefghijklmnopqrstuvwxyz.-";
	return !Name.empty() && Name.find_first_not_of(Allowed) == std::string::npos;
}

// Where the host ends.
std::size_t FindPort(const std::string& Authority)
{
	const std::size_t Colon = Authority.rfind(':');
	return Colon == std::string::npos || Authority.find(']', Colon) != std::string::npos ? Authority.size() : Colon;
}

std::optional<std::string> ReadAuthority(const std::string& Authority, const std::string& DefaultPort)
{
	const std::size_t PortStart = FindPort(Authority);
	const std::string Host = Authority.substr(0, PortStart);
	const std::string Port = Authority.substr(PortStart);
	if (!IsHost(Host) || !(Port.empty() || IsPort(Port.substr(1))))
	{
		return std::nullopt;
	}
	return Host + (Port == DefaultPort ? "" : Port);
}
} // namespace

bool IsPort(const std::string& Text)
{
	return !Text.empty() && Text.size() <= 5 && Text.find_first_not_of("0123456789") == std::string::npos && Text.front() != '0' &&
		   std::stoi(Text) <= 65535;
}

bool ReadOrigin(const std::string& Url, std::string& OutOrigin)
{
	const std::string Lower = ToLower(Url);
	for (const auto& [Scheme, DefaultPort] : {std::pair("http://", ":80"), std::pair("https://", ":443")})
	{
		if (!Lower.starts_with(Scheme))
		{
			continue;
		}
		const std::optional<std::string> Authority = ReadAuthority(Lower.substr(std::string(Scheme).size()), DefaultPort);
		OutOrigin = Authority ? Scheme + *Authority : OutOrigin;
		return Authority.has_value();
	}
	return false;
}

std::string MakeOrigin(const std::string& Host, int Port)
{
	std::string Origin;
	const std::string Authority = Host.find(':') == std::string::npos ? Host : '[' + Host + ']';
	ReadOrigin("http://" + Authority + (Port == 0 ? "" : ':' + std::to_string(Port)), Origin);
	return Origin;
}

FOwnAddresses::FOwnAddresses(const std::string& ListenHost, int Port, const std::string& PublicOrigin)
{
	if (!PublicOrigin.empty())
	{
		Origins.push_back(PublicOrigin);
	}
	for (const std::string& Host : {ListenHost, std::string("127.0.0.1"), std::string("localhost"), std::string("::1")})
	{
		Origins.push_back(MakeOrigin(Host, Port));
	}
}

bool FOwnAddresses::IsOwnHost(const std::string& HostHeader) const
{
	return std::any_of(Origins.begin(), Origins.end(),
		[&](const std::string& Own)
		{
			std::string Origin;
			return ReadOrigin(Own.substr(0, Own.find("//") + 2) + HostHeader, Origin) && Origin == Own;
		});
}

bool FOwnAddresses::IsOwnOrigin(const std::string& OriginHeader, const std::string& HostHeader) const
{
	std::string Origin;
	std::string Host;
	return ReadOrigin(OriginHeader, Origin) &&
		   (Origin == GetMain() || (IsOwnHost(HostHeader) && ReadOrigin("http://" + HostHeader, Host) && Origin == Host));
}
