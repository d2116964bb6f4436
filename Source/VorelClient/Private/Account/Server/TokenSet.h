// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Account/LoginOptions.h"
#include "Http/JsonText.h"

// What a login is worth.
struct FTokenSet
{
	std::string Access{};
	// Empty: can't be renewed.
	std::string Refresh{};

	// Seconds from the receipt on; 0 where nobody knows, and only a server's refusal tells.
	double Lifetime = 0.0;
	// By the two clocks.
	double ReceivedSteady = 0.0;
	double ReceivedWall = 0.0;

	// For a while yet. Margin: seconds, or less where the whole life is short.
	bool IsFresh(const FLoginClock& Clock, double Margin) const;

	// Of a reply of the token endpoint that has just come. Unset where it is none.
	static TOptional<FTokenSet> ReadReply(const FJson& Reply, const FLoginClock& Clock);

	// As it is stored. The age then counts by the time of day; where that went backwards the tokens look young, until a server refuses one.
	std::string Write() const;
	static TOptional<FTokenSet> Read(std::string_view Stored, const FLoginClock& Clock);
};
