// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "OAuth/AuthorizationRequest.h"

#include "Http/FormFields.h"
#include "Http/OwnAddresses.h"

#include <algorithm>

namespace
{
constexpr std::size_t MaxStateLength = 1024;

// Length of a SHA-256 in base64url.
constexpr std::size_t ChallengeLength = 43;

constexpr const char* Base64UrlLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";

// A program can't know beforehand which port it will get; all else is fixed, to the letter.
bool IsProgramRedirect(const std::string& Uri)
{
	const std::string End = "/callback";
	for (const std::string Start : {"http://127.0.0.1:", "http://[::1]:"})
	{
		if (Uri.starts_with(Start) && Uri.ends_with(End) && Uri.size() > Start.size() + End.size())
		{
			return IsPort(Uri.substr(Start.size(), Uri.size() - Start.size() - End.size()));
		}
	}
	return false;
}

bool IsState(const std::string& Text)
{
	return !Text.empty() && Text.size() <= MaxStateLength &&
		   std::all_of(Text.begin(), Text.end(), [](char Letter) { return Letter >= ' ' && Letter <= '~'; });
}

bool IsChallenge(const std::string& Text)
{
	return Text.size() == ChallengeLength && Text.find_first_not_of(Base64UrlLetters) == std::string::npos;
}

std::string FindError(const httplib::Params& Fields)
{
	const std::string ResponseType = GetField(Fields, "response_type");
	const std::string ResponseMode = GetField(Fields, "response_mode");
	if (HasRepeatedField(Fields) || ResponseType.empty() || !IsState(GetField(Fields, "state")) ||
		(!ResponseMode.empty() && ResponseMode != "query"))
	{
		return "invalid_request";
	}
	if (ResponseType != "code")
	{
		return "unsupported_response_type";
	}
	// Who leaves the method out means "plain", which protects nothing.
	return GetField(Fields, "code_challenge_method") == "S256" && IsChallenge(GetField(Fields, "code_challenge")) ? "" : "invalid_request";
}
} // namespace

FAuthorizationRequest ReadAuthorizationRequest(const httplib::Params& Fields)
{
	FAuthorizationRequest Request;
	if (Fields.count("client_id") != 1 || GetField(Fields, "client_id") != ProgramClientId)
	{
		Request.Problem = "This service does not know the program that asks you to sign in.";
		return Request;
	}
	const std::string Redirect = GetField(Fields, "redirect_uri");
	if (Fields.count("redirect_uri") != 1 || !IsProgramRedirect(Redirect))
	{
		Request.Problem = "The program that asks you to sign in gave an address that this service does not answer to.";
		return Request;
	}
	const std::string State = GetField(Fields, "state");
	Request.Terms = {Redirect, GetField(Fields, "code_challenge")};
	Request.State = IsState(State) && Fields.count("state") == 1 ? State : std::string();
	Request.Error = FindError(Fields);
	return Request;
}

std::vector<std::pair<std::string, std::string>> FAuthorizationRequest::GetFields() const
{
	return {{"response_type", "code"}, {"client_id", ProgramClientId}, {"redirect_uri", Terms.RedirectUri},
		{"code_challenge", Terms.Challenge}, {"code_challenge_method", "S256"}, {"state", State}};
}

std::string FAuthorizationRequest::MakeAnswer(const std::string& Name, const std::string& Value, const std::string& Issuer) const
{
	const std::string StateField = State.empty() ? "" : "&state=" + EncodeQueryValue(State);
	return Terms.RedirectUri + '?' + Name + '=' + EncodeQueryValue(Value) + StateField + "&iss=" + EncodeQueryValue(Issuer);
}
