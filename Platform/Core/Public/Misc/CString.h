// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/StringView.h"

// The C library's string functions for texts that end with a zero.
struct FCString
{
	static int32 Strlen(const TCHAR* String) { return FStringView(String).Len(); }
	static int32 Strcmp(const TCHAR* Lhs, const TCHAR* Rhs) { return FStringView(Lhs).Compare(Rhs, ESearchCase::CaseSensitive); }
	static int32 Stricmp(const TCHAR* Lhs, const TCHAR* Rhs) { return FStringView(Lhs).Compare(Rhs, ESearchCase::IgnoreCase); }
	// Zero where the text does not start with a number.
	static int32 Atoi(const TCHAR* String);
	static double Atod(const TCHAR* String);
};
