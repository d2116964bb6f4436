// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Http/HttpFetch.h"

#include "Account/Server/AuthorizationMetadata.h"
#include "Account/LogVorelAccount.h"
#include "Account/Server/Revocation.h"
#include "Http/Form.h"

FRevocation::FRevocation(FAuthorizationMetadata& Metadata, const FLoginOptions& Options, const FTokenSet& InTokens)
	: Tokens(InTokens)
	, ClientId(ToUtf8(Options.ClientId))
	, Limits(Options.Limits.Http)
	, MetadataRequest(Metadata.Request(
		  [this](const FAuthorizationServer* Server, const FText&)
		  {
			  bEnded = !Server || Server->RevocationEndpoint.empty();
			  if (!bEnded)
			  {
				  Tell(*Server);
			  }
		  }))
{
}

FRevocation::~FRevocation() = default;

void FRevocation::Tell(const FAuthorizationServer& Server)
{
	const bool bRefresh = !Tokens.Refresh.empty();
	const FFormFields Fields = {{"token", bRefresh ? Tokens.Refresh : Tokens.Access},
		{"token_type_hint", bRefresh ? "refresh_token" : "access_token"}, {"client_id", ClientId}};
	Fetch = MakeUnique<FHttpFetch>(MakeFormRequest(Server.RevocationEndpoint, Fields), Limits,
		[this](const TOptional<FHttpFailure>& Failure, const std::string&)
		{
			UE_CLOG(Failure.IsSet(), LogVorelAccount, Log, TEXT("The server could not be told of the logout"));
			bEnded = true;
		});
}
