// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Http/JsonText.h"

// What a server says of itself: whom to ask for what. The addresses are https, or http on this machine.
struct FAuthorizationServer
{
	std::string Issuer;
	std::string AuthorizationEndpoint;
	std::string TokenEndpoint;
	// Empty where it has none.
	std::string RevocationEndpoint;
	std::string UserInfoEndpoint;
	// The scopes to ask for, parted by blanks.
	std::string Scope;
	// Its replies to the browser say whom they are from.
	bool bNamesItself = false;

	// False, with a sentence, where that is no description of this issuer, or of a server that can't be used.
	static bool Read(const FJson& Metadata, const std::string& Issuer, FAuthorizationServer& OutServer, FText& OutFailure);

	static bool IsUsableAddress(const std::string& Url);
};
