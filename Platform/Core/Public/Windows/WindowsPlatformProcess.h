// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/UnrealString.h"

struct FWindowsPlatformProcess
{
	// Opens an address in the user's browser. Parameters are appended to it as they stand; both may be null, and so may Error.
	static void LaunchURL(const TCHAR* URL, const TCHAR* Parms, FString* Error);
};

using FPlatformProcess = FWindowsPlatformProcess;
