// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Http/RequestLimits.h"

// In seconds.
struct FLoginLimits
{
	// From the click to the last reply.
	double Login = 300.0;
	// Of a call of the desktop's secret store.
	double SecretStore = 5.0;
	// An access token with less time left is renewed first.
	double Margin = 60.0;
	// For another program that is just renewing the tokens: longer than all that it may wait for.
	double Lock = 150.0;
	// Of a browser's connection that sends no whole request.
	double Connection = 10.0;
	FRequestLimits Http{.Connect = 10.0, .FirstByte = 20.0, .BetweenBytes = 10.0};
};

// Both in seconds, from any beginning.
struct FLoginClock
{
	// Goes on while the machine sleeps, and never jumps.
	TFunction<double()> Steady;
	// The time of day, which may be wrong.
	TFunction<double()> Wall;

	static FLoginClock OfThisMachine();
};

struct FLoginOptions
{
	// The authorization server, whose metadata is found below its address. Empty where there is none: every login fails with a sentence.
	FString Issuer{};
	FString ClientId{};

	// For the marker of who was signed in, the lock, and the token file. Empty: everything stays in memory.
	FString DataFolder{};

	// Under which name the tokens are kept. Stays the same where the issuer's port does not.
	FString KeyringAccount{};

	bool bUseKeyring = true;
	// Where there is no secret store, the tokens may lie in a file of the user's own.
	bool bAllowTokenFile = false;

	FLoginLimits Limits{};
	FLoginClock Clock = FLoginClock::OfThisMachine();
};
