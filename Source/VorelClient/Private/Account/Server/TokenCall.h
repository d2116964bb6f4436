// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Account/Server/TokenSet.h"
#include "Http/Form.h"

class FHttpFetch;
struct FHttpFailure;

struct FTokenReply
{
	// Unset where the server gave none; then the sentence says why.
	TOptional<FTokenSet> Tokens;
	FText Failure;
	// What was handed in is no good, and never will be.
	bool bRefused = false;
};

// One exchange of a code or a refresh token for tokens. Destroying it hangs up in silence.
class FTokenCall final
{
public:
	// OnEnded may destroy the call.
	FTokenCall(const std::string& Endpoint, const FFormFields& Fields, const FLoginOptions& Options,
		TFunction<void(const FTokenReply&)> InOnEnded);
	~FTokenCall();

private:
	void HandleReply(const TOptional<FHttpFailure>& Failure, const std::string& Body);

	const FLoginClock Clock;
	TFunction<void(const FTokenReply&)> OnEnded;
	TUniquePtr<FHttpFetch> Fetch;
};
