// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Misc/CString.h"
#include "Containers/StringConv.h"

#include <algorithm>
#include <cstdlib>

int32 FCString::Atoi(const TCHAR* String)
{
	const long long Number = std::strtoll(TCHAR_TO_UTF8(String), nullptr, 10);
	return static_cast<int32>(std::clamp<long long>(Number, INT32_MIN, INT32_MAX));
}

double FCString::Atod(const TCHAR* String)
{
	return std::strtod(TCHAR_TO_UTF8(String), nullptr);
}
