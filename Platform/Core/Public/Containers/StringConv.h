// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/StringView.h"
#include <string>

// Both ways never fail: a byte sequence that is not UTF-8, and a surrogate without its pair, become U+FFFD.

class FTCHARToUTF8
{
public:
	explicit FTCHARToUTF8(FStringView Text);

	// Ends with a zero, which Length does not count.
	const ANSICHAR* Get() const { return Bytes.c_str(); }
	int32 Length() const { return static_cast<int32>(Bytes.size()); }

private:
	std::string Bytes;
};

class FUTF8ToTCHAR
{
public:
	explicit FUTF8ToTCHAR(const ANSICHAR* Bytes);
	FUTF8ToTCHAR(const ANSICHAR* Bytes, int32 Length);

	const TCHAR* Get() const { return Text.c_str(); }
	int32 Length() const { return static_cast<int32>(Text.size()); }
	operator FStringView() const { return FStringView(Text.data(), Length()); }

private:
	std::u16string Text;
};

// Valid until the end of the full expression.
#define TCHAR_TO_UTF8(String) FTCHARToUTF8(String).Get()
#define UTF8_TO_TCHAR(String) FUTF8ToTCHAR(String).Get()
