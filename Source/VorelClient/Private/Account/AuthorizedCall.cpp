// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Account/AuthorizedCall.h"

#include "Account/AccessTokenSource.h"
#include "Http/JsonText.h"

static constexpr int32 Unauthorized = 401;

FAuthorizedCall::FAuthorizedCall(FHttpRequest InRequest, const FRequestLimits& InLimits, IAccessTokenSource* InTokens)
	: Request(::MoveTemp(InRequest))
	, Limits(InLimits)
	, Tokens(InTokens)
{
}

void FAuthorizedCall::Start()
{
	if (Tokens)
	{
		RequestToken(FString());
	}
	else
	{
		Send(FString());
	}
}

void FAuthorizedCall::RequestToken(const FString& RefusedToken)
{
	TokenRequest = Tokens->RequestToken(RefusedToken,
		[this](const FString& Given)
		{
			if (Given.IsEmpty())
			{
				End(FHttpFailure{.Kind = EHttpFailure::Status, .Status = Unauthorized});
			}
			else
			{
				Send(Given);
			}
		});
}

void FAuthorizedCall::Send(const FString& InToken)
{
	Token = InToken;
	FHttpRequest Sent = Request;
	if (Tokens)
	{
		Sent.BearerToken = QByteArray::fromStdString(ToUtf8(Token));
	}
	Http = MakeUnique<FHttpCall>(::MoveTemp(Sent), Limits);
	Http->OnBody = [this](std::string_view Bytes)
	{
		OnBody(Bytes);
	};
	Http->OnEnded = [this](const TOptional<FHttpFailure>& Failure)
	{
		HandleEnded(Failure);
	};
	Http->Start();
}

void FAuthorizedCall::HandleEnded(const TOptional<FHttpFailure>& Failure)
{
	const bool bRefused = Failure && Failure->Kind == EHttpFailure::Status && Failure->Status == Unauthorized;
	if (bRefused && Tokens && !bRenewed)
	{
		bRenewed = true;
		RequestToken(Token);
	}
	else
	{
		End(Failure);
	}
}

void FAuthorizedCall::End(const TOptional<FHttpFailure>& Failure)
{
	// Destroys this call, as a rule, and with it the function that is running.
	const TFunction<void(const TOptional<FHttpFailure>&)> Handler = OnEnded;
	Handler(Failure);
}
