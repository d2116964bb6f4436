// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Account/AccountText.h"

#include "Account/LogVorelAccount.h"
#include "Http/Excerpt.h"
#include "Http/HttpFailure.h"

#define LOCTEXT_NAMESPACE "VorelClient"

DEFINE_LOG_CATEGORY(LogVorelAccount);

static FText Quote(const FString& ForeignText)
{
	return FText::FromString(MakeExcerpt(ForeignText));
}

FText AccountText::BadIssuer(const FString& Issuer)
{
	// Before it may stand a password.
	int32 At = INDEX_NONE;
	Issuer.FindLastChar(TEXT('@'), At);
	return Issuer.IsEmpty()
			   ? LOCTEXT("NoIssuer", "There is no service to sign in to. The log tells why.")
			   : FText::Format(LOCTEXT("BadIssuer", "\"{0}\" is no address to sign in at. It must begin with https://, or with http:// "
													"where it is on this computer."),
					 Quote(Issuer.RightChop(At + 1)));
}

FText AccountText::OtherIssuer(const FString& Issuer, const FString& Named)
{
	return Named.IsEmpty()
			   ? UnusableServer()
			   : FText::Format(LOCTEXT("OtherIssuer", "The service at {0} calls itself {1}, so nobody was signed in. Check its address."),
					 Quote(Issuer), Quote(Named));
}

FText AccountText::UnusableServer()
{
	return LOCTEXT("UnusableServer", "The service does not offer a sign-in that Vorel AI can use. Check its address.");
}

FText AccountText::NoTokens()
{
	return LOCTEXT("NoTokens", "The service sent something else than a sign-in. Try again later, or check its address.");
}

FText AccountText::Refused()
{
	return LOCTEXT("Refused", "The service did not accept the sign-in. Click \"Log in\" to try again.");
}

FText AccountText::Describe(const FHttpFailure& Failure)
{
	const FText Host = FText::FromString(Failure.Host);
	switch (Failure.Kind)
	{
	case EHttpFailure::NotReached:
	case EHttpFailure::HostNotFound:
		return FText::Format(
			LOCTEXT("SignInNotReached", "The sign-in service at {0} can't be reached. Check the network and try again."), Host);
	case EHttpFailure::NotSecure:
		return FText::Format(LOCTEXT("SignInNotSecure",
								 "No secure connection to the sign-in service at {0} could be made, so nothing was sent. Its certificate "
								 "may be wrong."),
			Host);
	case EHttpFailure::ProxyFailed:
		return LOCTEXT("SignInProxy", "The network's proxy does not let the sign-in through. Check the proxy settings.");
	case EHttpFailure::BrokenOff:
		return LOCTEXT("SignInBrokenOff", "The connection to the sign-in service broke off. Try again.");
	case EHttpFailure::TimeLimit:
		return FText::Format(LOCTEXT("SignInTime", "The sign-in service at {0} took too long. Try again."), Host);
	case EHttpFailure::RedirectedElsewhere:
		return FText::Format(
			LOCTEXT("SignInElsewhere", "The sign-in service leads on to another server, {0}, which was not contacted. Check its address."),
			Quote(Failure.Origin));
	case EHttpFailure::NotHttp:
	case EHttpFailure::TooManyRedirects:
	case EHttpFailure::TooLong:
		return NoTokens();
	case EHttpFailure::Status:
		break;
	}
	return FText::Format(
		Failure.Status == 429
			? LOCTEXT("SignInBusy", "The sign-in service gets too many requests. Wait a little and try again. (Error {0}.)")
			: LOCTEXT("SignInStatus", "The sign-in service refused the request. Try again later. (Error {0}.)"),
		FText::FromString(FString::FromInt(Failure.Status)));
}

FText AccountText::NoBrowser()
{
	return LOCTEXT("NoBrowser", "No browser could be opened to sign in. Install one or choose a default browser, then click \"Log in\".");
}

FText AccountText::NoPort()
{
	return LOCTEXT("NoPort", "This computer does not let Vorel AI wait for the browser's reply, so nobody can be signed in.");
}

FText AccountText::TooLate(double Seconds)
{
	return FText::Format(
		LOCTEXT("TooLate", "The sign-in in the browser was not completed within {0} minutes. Click \"Log in\" to try again."),
		FText::AsNumber(Seconds / 60.0));
}

FText AccountText::RefusedInBrowser(const FString& Error)
{
	if (Error == TEXT("access_denied"))
	{
		return LOCTEXT("Cancelled", "The sign-in was cancelled in the browser. Click \"Log in\" to try again.");
	}
	if (Error == TEXT("temporarily_unavailable") || Error == TEXT("server_error"))
	{
		return LOCTEXT("OutOfOrder", "The sign-in service has a problem. Try again later.");
	}
	return LOCTEXT("NotAllowed", "The sign-in service did not let Vorel AI sign you in.");
}

FText AccountText::SignedIn()
{
	return LOCTEXT("SignedIn", "You are signed in.");
}

FText AccountText::SignedOut()
{
	return LOCTEXT("SignedOut", "You are signed out.");
}

FText AccountText::NoSecretStore()
{
	return LOCTEXT("NoSecretStore",
		"You stay signed in until Vorel AI is closed: this desktop has no password store that it could use. The setting allowTokenFile "
		"lets it use a file instead.");
}

FText AccountText::NotStored()
{
	return LOCTEXT("NotStored",
		"You stay signed in until Vorel AI is closed: the sign-in could not be stored on this computer. The disk may be full, or the data "
		"folder closed to writing.");
}

FText AccountText::StoreBusy()
{
	return LOCTEXT("StoreBusy", "Another window of Vorel AI is busy with it, or the data folder is closed to writing.");
}

FText AccountText::StoreLocked()
{
	return LOCTEXT("StoreLocked", "It can't be read from this desktop's password store. Unlock it and try again.");
}

FText AccountText::NotRenewed(const FText& Reason)
{
	return FText::Format(LOCTEXT("NotRenewed", "Your sign-in could not be renewed yet. {0}"), Reason);
}

FText AccountText::Ended()
{
	return LOCTEXT("Ended", "Your sign-in has ended. Click \"Log in\" to sign in again.");
}

FText AccountText::EndedElsewhere()
{
	return LOCTEXT("EndedElsewhere", "You were signed out in another window. Click \"Log in\" to sign in again.");
}

FText AccountText::TokensMissing()
{
	return LOCTEXT("TokensMissing", "Your sign-in is no longer stored on this computer. Click \"Log in\" to sign in again.");
}

FText AccountText::TokensUnreadable()
{
	return LOCTEXT("TokensUnreadable",
		"Your sign-in can't be read from this desktop's password store. Unlock it and start Vorel AI anew, or click \"Log in\".");
}

#undef LOCTEXT_NAMESPACE
