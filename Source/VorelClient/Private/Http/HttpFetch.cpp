// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Http/HttpFetch.h"

FHttpFetch::FHttpFetch(FHttpRequest Request, const FRequestLimits& Limits, FOnEnded InOnEnded)
	: OnEnded(::MoveTemp(InOnEnded))
	, Call(::MoveTemp(Request), Limits)
	, LimitFailure(Call.MakeFailure(EHttpFailure::TimeLimit))
{
	Call.OnBody = [this](std::string_view Bytes)
	{
		TakeBytes(Bytes);
	};
	Call.OnEnded = [this](const TOptional<FHttpFailure>& Failure)
	{
		End(Failure);
	};
	LimitFailure.Phase = EHttpPhase::Receiving;
	LimitFailure.Seconds = Limits.Connect + Limits.FirstByte + Limits.BetweenBytes;
	Limit.setSingleShot(true);
	QObject::connect(&Limit, &QTimer::timeout, &Limit, [this] { End(LimitFailure); });
	Limit.start(FMath::CeilToInt(LimitFailure.Seconds * 1000.0));
	Call.Start();
}

void FHttpFetch::TakeBytes(std::string_view Bytes)
{
	Body += Bytes;
	if (Body.size() > MaxReplyBytes)
	{
		Call.HangUp();
		LimitFailure.Kind = EHttpFailure::TooLong;
		Limit.start(0);
	}
}

void FHttpFetch::End(const TOptional<FHttpFailure>& Failure)
{
	Limit.stop();
	Call.HangUp();
	// Destroys this fetch, as a rule, and with it what is handed over.
	const FOnEnded Handler = OnEnded;
	const std::string Reply = ::MoveTemp(Body);
	const TOptional<FHttpFailure> Reason = Failure;
	Handler(Reason, Reply);
}
