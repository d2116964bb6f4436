// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Http/HttpFetch.h"

#include "Account/AccountText.h"
#include "Account/Server/TokenCall.h"

// A server that is out of order does not say that.
static bool IsRefusal(const FHttpFailure& Failure)
{
	const FString Error = ToString(GetMember(ParseJson(Failure.Body), "error"));
	return (Failure.Status == 400 || Failure.Status == 401) &&
		   (Error == TEXT("invalid_grant") || Error == TEXT("invalid_client") || Error == TEXT("unauthorized_client"));
}

FTokenCall::FTokenCall(
	const std::string& Endpoint, const FFormFields& Fields, const FLoginOptions& Options, TFunction<void(const FTokenReply&)> InOnEnded)
	: Clock(Options.Clock)
	, OnEnded(::MoveTemp(InOnEnded))
	, Fetch(MakeUnique<FHttpFetch>(MakeFormRequest(Endpoint, Fields), Options.Limits.Http,
		  [this](const TOptional<FHttpFailure>& Failure, const std::string& Body) { HandleReply(Failure, Body); }))
{
}

FTokenCall::~FTokenCall() = default;

void FTokenCall::HandleReply(const TOptional<FHttpFailure>& Failure, const std::string& Body)
{
	FTokenReply Reply;
	if (Failure)
	{
		Reply.bRefused = IsRefusal(*Failure);
		Reply.Failure = Reply.bRefused ? AccountText::Refused() : AccountText::Describe(*Failure);
	}
	else
	{
		Reply.Tokens = FTokenSet::ReadReply(ParseJson(Body), Clock);
		Reply.Failure = Reply.Tokens ? FText() : AccountText::NoTokens();
	}
	const TFunction<void(const FTokenReply&)> Handler = OnEnded;
	Handler(Reply);
}
