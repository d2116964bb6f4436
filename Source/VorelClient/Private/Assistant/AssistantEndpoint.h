// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Http/RequestLimits.h"

class IAccessTokenSource;

// A chat-completions server.
struct FAssistantEndpoint
{
	// "https://host/v1", with or without a slash at the end.
	FString BaseUrl;

	// Empty: the first one that the server names.
	FString Model;

	// Sent to this server alone, and never logged. May be empty.
	FString ApiKey;

	// Of our own service: who hands over tokens for it, in place of a key, and where credits are to be had. Null for any other server,
	// which is never given the one nor told the chat mode.
	IAccessTokenSource* Tokens = nullptr;
	FString BillingUrl;

	// Why there is no server to ask, for the user. Empty where there is one.
	FText Unavailable;

	// What the server named first when it was asked; forgotten when a request fails, since it may have become another server.
	FString FirstModel;
};
