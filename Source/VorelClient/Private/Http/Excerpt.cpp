// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Http/Excerpt.h"

// Blanks, control characters, and those that end a line or turn the direction of all that follows.
static bool IsBlank(TCHAR Character)
{
	return Character <= 0x20 || (Character >= 0x7F && Character <= 0xA0) || (Character >= 0x2028 && Character <= 0x202E) ||
		   (Character >= 0x2066 && Character <= 0x2069);
}

FString MakeExcerpt(const FString& ForeignText, int32 MaxLength)
{
	FString Excerpt;
	for (const TCHAR Character : ForeignText)
	{
		if (!IsBlank(Character))
		{
			Excerpt.AppendChar(Character);
		}
		else if (!Excerpt.EndsWith(TEXT(" ")))
		{
			Excerpt.AppendChar(' ');
		}
		if (Excerpt.Len() > MaxLength)
		{
			// Not between the halves of a surrogate pair.
			const bool bHalf = (Excerpt[MaxLength - 1] & 0xFC00) == 0xD800;
			return Excerpt.Left(MaxLength - (bHalf ? 1 : 0)).TrimStartAndEnd() + TEXT("…");
		}
	}
	return Excerpt.TrimStartAndEnd();
}
