// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Account/Server/AuthorizationServer.h"
#include "Http/Form.h"

// What a redirect turned out to be.
enum class ERedirect : uint8
{
	// Of this request, with a code.
	Code,
	// Of this request: the server, or the user there, said no.
	Refusal,
	// Of another login, or of nobody's.
	OtherLogin,
	// From another server than the one that was asked.
	OtherServer,
	// Neither a code nor an error, or something twice.
	Incomplete
};

// One question to the user, asked in the browser, with secrets of its own.
class FAuthorizationRequest final
{
public:
	FAuthorizationRequest(const FAuthorizationServer& InServer, const std::string& InClientId, const std::string& InRedirectUri);

	// To open in the browser. Holds no secret that would be of use without the verifier, but is nobody else's business.
	std::string MakeUrl() const;

	ERedirect Judge(const FFormFields& Redirect) const;

	// What turns the code into tokens.
	FFormFields MakeExchange(const std::string& Code) const;

private:
	const FAuthorizationServer Server;
	const std::string ClientId;
	const std::string RedirectUri;
	const std::string State;
	const std::string Verifier;
};
