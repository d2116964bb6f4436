// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreTypes.h"

struct FWindowsPlatformApplicationMisc
{
	static void ClipboardCopy(const TCHAR* Str);
};

using FPlatformApplicationMisc = FWindowsPlatformApplicationMisc;
