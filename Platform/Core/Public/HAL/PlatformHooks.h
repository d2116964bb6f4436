// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/UnrealString.h"
#include "Templates/Function.h"

// What the desktop does for the code below it. A hook that is not installed makes its operation fail with a logged warning.
struct FPlatformHooks
{
	static FPlatformHooks& Get();

	// False, with the reason, where the address can't be opened.
	TFunction<bool(const FString& URL, FString& OutError)> LaunchURL;
	TFunction<void(const FString& Text)> ClipboardCopy;
};
