// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "OAuth/AuthorizationRequest.h"

struct FServiceParts;
struct FSignInResult;

// The sign-in page. A program opens it in the browser and gets a code by a redirect; without a program the browser itself is signed in.
class FLoginHandlers
{
public:
	explicit FLoginHandlers(FServiceParts& InParts)
		: Parts(InParts)
	{
	}

	void Show(const httplib::Request& Request, httplib::Response& Response) const;
	void Take(const httplib::Request& Request, httplib::Response& Response) const;

private:
	// Nothing where there is no program; then the response is not touched. Else its request, or what is wrong with it in the response.
	bool ReadProgram(const httplib::Request& Request, httplib::Response& Response, std::optional<FAuthorizationRequest>& OutProgram) const;
	void Finish(const FAccount& Account, const std::optional<FAuthorizationRequest>& Program, httplib::Response& Response) const;
	void SendForm(const std::optional<FAuthorizationRequest>& Program, const FSignInResult& Failure, const std::string& NameTyped,
		httplib::Response& Response) const;

	FServiceParts& Parts;
};
