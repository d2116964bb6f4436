// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Containers/StringConv.h"

#include <unicode/ustring.h>
#include <cstring>

static constexpr UChar32 ReplacementCharacter = 0xFFFD;

FTCHARToUTF8::FTCHARToUTF8(FStringView Text)
{
	// No UTF-16 unit takes more than three bytes.
	check(Text.Len() <= MAX_int32 / 3);
	Bytes.resize(static_cast<SIZE_T>(Text.Len()) * 3);
	UErrorCode Error = U_ZERO_ERROR;
	int32 Length = 0;
	u_strToUTF8WithSub(
		Bytes.data(), static_cast<int32>(Bytes.size()), &Length, Text.GetData(), Text.Len(), ReplacementCharacter, nullptr, &Error);
	check(U_SUCCESS(Error));
	Bytes.resize(static_cast<SIZE_T>(Length));
}

FUTF8ToTCHAR::FUTF8ToTCHAR(const ANSICHAR* InBytes)
	: FUTF8ToTCHAR(InBytes, InBytes ? static_cast<int32>(std::strlen(InBytes)) : 0)
{
}

FUTF8ToTCHAR::FUTF8ToTCHAR(const ANSICHAR* InBytes, int32 InLength)
{
	// No byte gives more than one unit.
	Text.resize(static_cast<SIZE_T>(InLength));
	UErrorCode Error = U_ZERO_ERROR;
	int32 Length = 0;
	u_strFromUTF8WithSub(Text.data(), InLength, &Length, InBytes, InLength, ReplacementCharacter, nullptr, &Error);
	check(U_SUCCESS(Error));
	Text.resize(static_cast<SIZE_T>(Length));
}
