// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Http/Excerpt.h"

FString MakeExcerpt(const FString& ForeignText)
{
	constexpr int32 MaxLength = 200;
	FString Excerpt;
	for (const TCHAR Character : ForeignText)
	{
		const bool bBlank = Character <= 0x20 || (Character >= 0x7F && Character <= 0xA0);
		if (!bBlank)
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
