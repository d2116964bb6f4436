// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include <string>

enum class EHttpPhase : uint8
{
	Connecting,
	WaitingForFirstByte,
	Receiving
};

enum class EHttpFailure : uint8
{
	NotReached,
	HostNotFound,
	NotSecure,
	ProxyFailed,
	BrokenOff,
	// What came was no HTTP.
	NotHttp,
	TimeLimit,
	// To another origin, which was not contacted.
	RedirectedElsewhere,
	TooManyRedirects,
	// The server refused.
	Status,
	// The reply is longer than anybody wants to read.
	TooLong
};

// Why a request failed. Who asked knows the words for it.
struct FHttpFailure
{
	EHttpFailure Kind = EHttpFailure::BrokenOff;
	// With the port where one was given.
	FString Host{};

	// Of a time limit.
	EHttpPhase Phase = EHttpPhase::Connecting;
	double Seconds = 0.0;

	// Of a redirect elsewhere.
	FString Origin{};

	// Of a refusal: what the server wrote, up to a limit, and how many seconds it asks to wait, or nothing.
	int32 Status = 0;
	std::string Body{};
	FString RetryAfter{};
};
