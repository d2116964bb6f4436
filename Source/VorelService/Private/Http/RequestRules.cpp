// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Http/RequestRules.h"

#include "Http/Replies.h"

#include <charconv>
#include <optional>

namespace
{
std::optional<std::uint64_t> ReadLength(const httplib::Request& Request)
{
	const std::string Text = Request.get_header_value("Content-Length");
	std::uint64_t Length = 0;
	const auto [End, Error] = std::from_chars(Text.data(), Text.data() + Text.size(), Length);
	return Error == std::errc() && End == Text.data() + Text.size() ? std::optional<std::uint64_t>(Length) : std::nullopt;
}
} // namespace

FRequestRules::FRequestRules(std::vector<FRoute> InRoutes, FOwnAddresses InAddresses)
	: Routes(std::move(InRoutes))
	, Addresses(std::move(InAddresses))
{
}

bool FRequestRules::Allow(const httplib::Request& Request, httplib::Response& Response) const
{
	if (!AllowSender(Request, Response))
	{
		return false;
	}
	const FRoute* const Route = FindRoute(Request, Response);
	return Route && AllowBody(Request, *Route, Response);
}

bool FRequestRules::AllowSender(const httplib::Request& Request, httplib::Response& Response) const
{
	// A page in the browser may lead here by a link, but not act here in its reader's place.
	const std::string Site = Request.get_header_value("Sec-Fetch-Site");
	const bool bForeignPost = Request.method == "POST" && !Site.empty() && Site != "same-origin" && Site != "none";
	const std::string Host = Request.get_header_value("Host");
	const bool bOwnOrigin = !Request.has_header("Origin") || Addresses.IsOwnOrigin(Request.get_header_value("Origin"), Host);
	const bool bOwnHost = Addresses.IsOwnHost(Host);
	if (!bOwnHost || !bOwnOrigin || bForeignPost)
	{
		Refuse(Request, Response, 403, bOwnHost ? "This service is not called from there." : "This service is not called by this name.");
		return false;
	}
	return true;
}

const FRoute* FRequestRules::FindRoute(const httplib::Request& Request, httplib::Response& Response) const
{
	std::string Allowed;
	for (const FRoute& Route : Routes)
	{
		if (Request.path != Route.Path)
		{
			continue;
		}
		if (Request.method == Route.Method || (Request.method == "HEAD" && std::string("GET") == Route.Method))
		{
			return &Route;
		}
		Allowed += (Allowed.empty() ? "" : ", ") + std::string(Route.Method);
	}
	if (Allowed.empty())
	{
		Refuse(Request, Response, 404, "There is nothing at this address.");
		return nullptr;
	}
	Response.set_header("Allow", Allowed);
	Refuse(Request, Response, 405, "Use " + Allowed + " here.");
	return nullptr;
}

bool FRequestRules::AllowBody(const httplib::Request& Request, const FRoute& Route, httplib::Response& Response) const
{
	// The length of a body that is sent compressed or in chunks is known too late.
	if (Request.has_header("Content-Encoding"))
	{
		Refuse(Request, Response, 415, "Send the body as it is, not compressed.");
		return false;
	}
	if (Request.has_header("Transfer-Encoding"))
	{
		Refuse(Request, Response, 411, "Send the body in one piece, with its length.");
		return false;
	}
	const std::optional<std::uint64_t> Length = ReadLength(Request);
	if (!Length && (Request.method == "POST" || Request.has_header("Content-Length")))
	{
		Refuse(Request, Response, 411, "Say how long the body is.");
		return false;
	}
	if (Length.value_or(0) > Route.MaxBodyBytes)
	{
		Refuse(Request, Response, 413, "The request is too large.");
		return false;
	}
	return Length.value_or(0) <= FRoute::MaxStrangerBytes || !Route.Admit || Route.Admit(Request, Response);
}
