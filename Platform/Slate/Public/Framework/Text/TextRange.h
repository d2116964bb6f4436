// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

/** UTF-16 units [BeginIndex, EndIndex) of some string. */
struct FTextRange
{
	int32 BeginIndex = INDEX_NONE;
	int32 EndIndex = INDEX_NONE;

	FTextRange() = default;
	FTextRange(int32 InBeginIndex, int32 InEndIndex)
		: BeginIndex(InBeginIndex)
		, EndIndex(InEndIndex)
	{
	}

	bool operator==(const FTextRange&) const = default;

	int32 Len() const { return EndIndex - BeginIndex; }
	bool IsEmpty() const { return Len() <= 0; }
	bool Contains(int32 Index) const { return Index >= BeginIndex && Index < EndIndex; }
};
