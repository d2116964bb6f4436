// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

struct FChatMode
{
	const TCHAR* Name;
	bool bAgent;
	// Sent to the assistant ahead of the conversation.
	const TCHAR* Instructions;
};

// In display order.
const TArray<FChatMode>& GetChatModes();

// Null for a name that is no mode's. Letter case doesn't count.
const FChatMode* FindChatMode(const FString& Name);
