// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Account/Server/TokenSet.h"

class FAuthorizationMetadata;
class FHttpFetch;
struct FAuthorizationServer;

// Tells the server that a login is over. It does its best; nobody waits for it. Destroying it stops it.
class FRevocation final
{
public:
	// Metadata must outlive it.
	FRevocation(FAuthorizationMetadata& Metadata, const FLoginOptions& Options, const FTokenSet& InTokens);
	~FRevocation();

	bool HasEnded() const { return bEnded; }

private:
	void Tell(const FAuthorizationServer& Server);

	const FTokenSet Tokens;
	const std::string ClientId;
	const FRequestLimits Limits;
	bool bEnded = false;
	TSharedPtr<void> MetadataRequest;
	TUniquePtr<FHttpFetch> Fetch;
};
