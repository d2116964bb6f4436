// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Misc/Char.h"

#include <unicode/uchar.h>

bool FChar::IsWhitespace(TCHAR Character)
{
	return Character < 0x80 ? Character == TEXT(' ') || (Character >= TEXT('\t') && Character <= TEXT('\r')) : u_isUWhiteSpace(Character);
}

bool FChar::IsAlpha(TCHAR Character)
{
	return u_isalpha(Character);
}

bool FChar::IsAlnum(TCHAR Character)
{
	return u_isalnum(Character);
}

bool FChar::IsUpper(TCHAR Character)
{
	return u_isupper(Character);
}

bool FChar::IsLinebreak(TCHAR Character)
{
	return (Character >= 0x0A && Character <= 0x0D) || Character == 0x85 || Character == 0x2028 || Character == 0x2029;
}

TCHAR FChar::ToLower(TCHAR Character)
{
	return static_cast<TCHAR>(u_tolower(Character));
}

TCHAR FChar::ToUpper(TCHAR Character)
{
	return static_cast<TCHAR>(u_toupper(Character));
}
