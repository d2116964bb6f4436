// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Misc/Char.h"

#include <unicode/uchar.h>

bool FChar::IsWhitespace(TCHAR Character)
{
	return Character < 0x80 ? Character == TEXT(' ') || (Character >= TEXT('\t') && Character <= TEXT('\r')) : u_isUWhiteSpace(Character);
}

TCHAR FChar::ToLower(TCHAR Character)
{
	return static_cast<TCHAR>(u_tolower(Character));
}

TCHAR FChar::ToUpper(TCHAR Character)
{
	return static_cast<TCHAR>(u_toupper(Character));
}
