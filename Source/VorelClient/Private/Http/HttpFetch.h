// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

// Qt's headers come before the engine's, whose macros they don't survive.
#include "Http/HttpCall.h"

// A short reply, read whole. Destroying the fetch hangs up in silence.
class FHttpFetch final
{
public:
	static constexpr std::size_t MaxReplyBytes = 1024 * 1024;

	// Set: the reason why there is none, or not a whole one.
	using FOnEnded = TFunction<void(const TOptional<FHttpFailure>& Failure, const std::string& Body)>;

	// OnEnded may destroy the fetch. The limits also bound the whole: a server that sends a byte now and then does not hold it up longer
	// than their sum.
	FHttpFetch(FHttpRequest Request, const FRequestLimits& Limits, FOnEnded InOnEnded);

private:
	void TakeBytes(std::string_view Bytes);
	void End(const TOptional<FHttpFailure>& Failure);

	FOnEnded OnEnded;
	std::string Body;
	FHttpCall Call;
	// Ends the fetch in the call's place.
	QTimer Limit;
	FHttpFailure LimitFailure;
};
