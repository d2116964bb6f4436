// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreTypes.h"

// Questions about one UTF-16 unit.
struct FChar
{
	static bool IsWhitespace(TCHAR Character);
	static bool IsAlpha(TCHAR Character);
	static bool IsAlnum(TCHAR Character);
	static bool IsDigit(TCHAR Character) { return Character >= TEXT('0') && Character <= TEXT('9'); }
	static bool IsUpper(TCHAR Character);
	static bool IsLinebreak(TCHAR Character);
	static TCHAR ToLower(TCHAR Character);
	static TCHAR ToUpper(TCHAR Character);
};
