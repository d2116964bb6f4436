// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Layout/SlateRect.h"

FSlateRect FSlateRect::IntersectionWith(const FSlateRect& Other) const
{
	return FSlateRect(
		FMath::Max(Left, Other.Left), FMath::Max(Top, Other.Top), FMath::Min(Right, Other.Right), FMath::Min(Bottom, Other.Bottom));
}

FSlateRect FSlateRect::Expand(const FSlateRect& Other) const
{
	if (IsEmpty())
	{
		return Other;
	}
	if (Other.IsEmpty())
	{
		return *this;
	}
	return FSlateRect(
		FMath::Min(Left, Other.Left), FMath::Min(Top, Other.Top), FMath::Max(Right, Other.Right), FMath::Max(Bottom, Other.Bottom));
}
