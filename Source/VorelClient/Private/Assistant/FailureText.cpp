// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Assistant/FailureText.h"

#include "Assistant/AnswerReader.h"
#include "Http/Excerpt.h"
#include "Http/HttpFailure.h"

#define LOCTEXT_NAMESPACE "VorelClient"

namespace
{
FText DescribeStatus(int32 Code)
{
	switch (Code)
	{
	case 400:
		return LOCTEXT("Status400", "The assistant rejected the request. The conversation may be too long for it; a new chat can help.");
	case 401:
		return LOCTEXT(
			"Status401", "The assistant did not accept the key. Set the environment variable VOREL_ASSISTANT_KEY to a valid one.");
	case 402:
		return LOCTEXT("Status402", "The account at this assistant has no credits left.");
	case 403:
		return LOCTEXT("Status403", "The assistant does not allow this key to use it.");
	case 404:
		return LOCTEXT("Status404",
			"The assistant was not found at its address, or it does not have the model. Check both; many addresses end in /v1.");
	case 408:
	case 504:
		return LOCTEXT("StatusTime", "The assistant's server took too long. Try again.");
	case 413:
		return LOCTEXT("Status413", "The conversation is too long for the assistant. Start a new chat.");
	case 429:
		return LOCTEXT("Status429", "The assistant gets too many requests at the moment. Wait a little and send the message again.");
	default:
		return Code >= 500 ? LOCTEXT("Status5xx", "The assistant's server has a problem. Try again later.")
						   : LOCTEXT("StatusOther", "The assistant's server refused the request.");
	}
}

FText AppendDetail(const FText& Sentence, const FString& Detail)
{
	const FString Excerpt = MakeExcerpt(Detail);
	return Excerpt.IsEmpty() ? Sentence : FText::Format(LOCTEXT("WithDetail", "{0} It says: {1}"), Sentence, FText::FromString(Excerpt));
}

FText DescribeTimeLimit(const FHttpFailure& Failure)
{
	const FText Number = FText::AsNumber(Failure.Seconds);
	switch (Failure.Phase)
	{
	case EHttpPhase::Connecting:
		return FText::Format(
			LOCTEXT("ConnectLimit", "{0} did not accept a connection within {1} seconds."), FText::FromString(Failure.Host), Number);
	case EHttpPhase::WaitingForFirstByte:
		return FText::Format(LOCTEXT("FirstByteLimit", "The assistant did not begin to answer within {0} seconds."), Number);
	default:
		return FText::Format(
			LOCTEXT("BetweenBytesLimit", "The assistant fell silent for {0} seconds in the middle of its answer."), Number);
	}
}

FText DescribeRefusal(const FHttpFailure& Failure)
{
	const FText WithCode = FText::Format(
		LOCTEXT("WithCode", "{0} (Error {1}.)"), DescribeStatus(Failure.Status), FText::FromString(FString::FromInt(Failure.Status)));
	const FText WithWait = Failure.RetryAfter.IsEmpty() ? WithCode
														: FText::Format(LOCTEXT("WithWait", "{0} It asks to wait {1} seconds."), WithCode,
															  FText::FromString(Failure.RetryAfter));
	return AppendDetail(WithWait, ReadErrorMessage(Failure.Body));
}
} // namespace

FText FailureText::BadAddress(const FString& Address)
{
	return FText::Format(
		LOCTEXT("BadAddress", "The assistant's address \"{0}\" is not a web address. It must begin with http:// or https://."),
		FText::FromString(MakeExcerpt(Address)));
}

FText FailureText::Describe(const FHttpFailure& Failure)
{
	const FText Host = FText::FromString(Failure.Host);
	switch (Failure.Kind)
	{
	case EHttpFailure::NotReached:
		return FText::Format(LOCTEXT("NotReached", "No assistant answers at {0}. Is it running?"), Host);
	case EHttpFailure::HostNotFound:
		return FText::Format(
			LOCTEXT("HostNotFound", "The assistant's server {0} can't be found. Check its address and the network."), Host);
	case EHttpFailure::NotSecure:
		return FText::Format(
			LOCTEXT("NotSecure", "No secure connection to {0} could be made, so nothing was sent. Its certificate may be wrong."), Host);
	case EHttpFailure::ProxyFailed:
		return LOCTEXT("ProxyFailed", "The network's proxy does not let the request through. Check the proxy settings.");
	case EHttpFailure::BrokenOff:
		return BrokenOff();
	case EHttpFailure::NotHttp:
		return NotAnAnswer();
	case EHttpFailure::TimeLimit:
		return DescribeTimeLimit(Failure);
	case EHttpFailure::RedirectedElsewhere:
		return FText::Format(LOCTEXT("RedirectedElsewhere", "The assistant's address leads on to another server, {0}, which was not "
															"contacted. If you trust it, give its address instead."),
			FText::FromString(MakeExcerpt(Failure.Origin)));
	case EHttpFailure::TooManyRedirects:
		return LOCTEXT("TooManyRedirects", "The assistant's address leads round in a circle.");
	case EHttpFailure::TooLong:
		return TooLong();
	case EHttpFailure::Status:
		return DescribeRefusal(Failure);
	}
	return BrokenOff();
}

FText FailureText::DescribeOfService(const FHttpFailure& Failure, const FString& BillingUrl)
{
	switch (Failure.Kind == EHttpFailure::Status ? Failure.Status : 0)
	{
	case 401:
		// Without a host the service was not asked at all, for want of a token.
		return Failure.Host.IsEmpty()
				   ? LOCTEXT("NoToken", "Your login could not be confirmed at the moment. The log tells why. Try again in a while.")
				   : LOCTEXT("SignInAgain", "Your login is no longer valid. Log out and sign in again.");
	case 402:
		return FText::Format(LOCTEXT("NoCredits", "You have no credits left for this mode. Get more at {0}, or take another mode."),
			FText::FromString(BillingUrl));
	default:
		return Describe(Failure);
	}
}

FText FailureText::BrokenOff()
{
	return LOCTEXT("BrokenOff", "The connection to the assistant broke off before the answer was complete.");
}

FText FailureText::ServerError(const FString& Detail)
{
	return AppendDetail(LOCTEXT("ServerError", "The assistant reported an error."), Detail);
}

FText FailureText::NotAnAnswer()
{
	return LOCTEXT("NotAnAnswer", "What the server sent is not an assistant's answer. Check the assistant's address.");
}

FText FailureText::WebPage(const FString& Title)
{
	return AppendDetail(LOCTEXT("WebPage", "A web page came in place of the assistant's answer. Check the assistant's address."), Title);
}

FText FailureText::TooLong()
{
	return LOCTEXT("TooLong", "The assistant's answer was too long and was stopped.");
}

FText FailureText::NoModel()
{
	return LOCTEXT("NoModel", "The assistant's server names no model. Choose one with --model.");
}

FText FailureText::Empty()
{
	return LOCTEXT("Empty", "The assistant ended its answer without a word. Try again.");
}

FText FailureText::EmptyByLengthLimit()
{
	return LOCTEXT(
		"EmptyByLengthLimit", "The assistant reached its length limit before the first word of its answer. A new chat can help.");
}

FText FailureText::Withheld()
{
	return LOCTEXT("Withheld", "The assistant's provider withheld the answer by its content rules.");
}

FText FailureText::ConversationDeleted()
{
	return LOCTEXT("ConversationDeleted", "The answer was stopped because its conversation was deleted.");
}

FText FailureText::ConversationLeft()
{
	return LOCTEXT("ConversationLeft", "The answer was stopped because another conversation was opened.");
}

FText FailureText::ConversationNotRead()
{
	return LOCTEXT("ConversationNotRead", "Nothing was sent, because the earlier messages of this conversation can't be read.");
}

#undef LOCTEXT_NAMESPACE
