// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreTypes.h"

// Questions about one UTF-16 unit.
struct FChar
{
	static bool IsWhitespace(TCHAR Character);
	static TCHAR ToLower(TCHAR Character);
	static TCHAR ToUpper(TCHAR Character);
};
