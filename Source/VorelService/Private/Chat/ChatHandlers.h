// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Accounts/AccountStore.h"
#include "Chat/PacedStream.h"

#include <httplib.h>

class FGuide;
struct FServiceParts;

// The chat-completions protocol, answered from the guide.
class FChatHandlers
{
public:
	FChatHandlers(FServiceParts& InParts, const FGuide& InGuide)
		: Parts(InParts)
		, Guide(InGuide)
	{
	}

	static void ServeModels(httplib::Response& Response);

	// Account: who pays; null where that is free.
	void ServeCompletion(const httplib::Request& Request, httplib::Response& Response, const FAccount* Account);

	// Breaks off the answers under way.
	void Stop() { StopSignal.Stop(); }

private:
	void Stream(httplib::Response& Response, std::vector<std::string> Events);

	FServiceParts& Parts;
	const FGuide& Guide;
	FStopSignal StopSignal;
};
