// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// What the program was told on its command line. What is left empty comes from the user's settings.
struct FVorelClientOptions
{
	// Base address of a chat-completions server. Neither here nor in the settings: the service itself.
	FString AssistantUrl{};

	// Empty: the first one that the server names.
	FString Model{};

	// Where the service is, without a slash at the end. Empty: embedded.
	FString ServiceUrl{};

	// Another authorization server than the service, exactly as it calls itself, and this program's name there; both or none.
	FString Issuer{};
	FString ClientId{};

	// Of the embedded service. Unset: its own number.
	TOptional<int32> DailyCredits{};

	// Pause of the local service between two pieces of an answer. Negative: its own natural pace.
	int32 GuidePieceMilliseconds = -1;

	// To be given before the module VorelClient is loaded, which reads it once.
	static void Set(const FVorelClientOptions& Options);
	static const FVorelClientOptions& Get();
};
