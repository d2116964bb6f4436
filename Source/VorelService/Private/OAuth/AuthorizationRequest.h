// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "OAuth/TokenStore.h"

#include <httplib.h>
#include <utility>

// The one program that may ask for codes. It runs on its user's machine and can keep no secret of its own.
inline constexpr const char* ProgramClientId = "vorel-editor";

// What a program asks for by opening the sign-in page.
struct FAuthorizationRequest
{
	FCodeTerms Terms{};
	std::string State{};

	// A sentence, where nobody may be answered by a redirect, because the redirect itself is wrong.
	std::string Problem{};

	// By RFC 6749, for the program; empty where all is right.
	std::string Error{};

	// Names and values that make the same request again.
	std::vector<std::pair<std::string, std::string>> GetFields() const;

	// Where the browser takes the answer. Name: "code" or "error".
	std::string MakeAnswer(const std::string& Name, const std::string& Value, const std::string& Issuer) const;
};

FAuthorizationRequest ReadAuthorizationRequest(const httplib::Params& Fields);
