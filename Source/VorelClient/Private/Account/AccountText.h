// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

struct FHttpFailure;

// Why nobody is signed in, in sentences for the user. They hold no secret and nothing that came by an address's query.
namespace AccountText
{
// Of the service that was asked.
FText BadIssuer(const FString& Issuer);
FText OtherIssuer(const FString& Issuer, const FString& Named);
FText UnusableServer();
FText NoTokens();
FText Refused();
FText Describe(const FHttpFailure& Failure);

// Of the browser. Error is the server's word for it.
FText NoBrowser();
FText NoPort();
FText TooLate(double Seconds);
FText RefusedInBrowser(const FString& Error);

// Of a login that had worked.
FText SignedIn();
FText SignedOut();
// It holds for this run.
FText NoSecretStore();
FText NotStored();
FText StoreBusy();
FText StoreLocked();
FText NotRenewed(const FText& Reason);
FText Ended();
FText EndedElsewhere();
FText TokensMissing();
FText TokensUnreadable();
} // namespace AccountText
