// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Http/OwnAddresses.h"
#include "Http/Route.h"

// What holds for every request before its body is read. All that is refused here has no effect.
class FRequestRules
{
public:
	FRequestRules(std::vector<FRoute> InRoutes, FOwnAddresses InAddresses);

	const std::vector<FRoute>& GetRoutes() const { return Routes; }

	// False: the response says why.
	bool Allow(const httplib::Request& Request, httplib::Response& Response) const;

private:
	bool AllowSender(const httplib::Request& Request, httplib::Response& Response) const;
	bool AllowBody(const httplib::Request& Request, const FRoute& Route, httplib::Response& Response) const;
	const FRoute* FindRoute(const httplib::Request& Request, httplib::Response& Response) const;

	const std::vector<FRoute> Routes;
	const FOwnAddresses Addresses;
};
