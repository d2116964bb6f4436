// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Message.h"

// One message as it goes to an assistant.
struct FChatMessage
{
	EChatRole Role = EChatRole::User;
	FString Text;
};
