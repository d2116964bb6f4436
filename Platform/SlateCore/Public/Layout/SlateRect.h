// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

/** An axis-aligned rectangle; empty unless Right > Left and Bottom > Top. */
struct FSlateRect
{
	float Left = 0.0f;
	float Top = 0.0f;
	float Right = 0.0f;
	float Bottom = 0.0f;

	constexpr FSlateRect() = default;
	constexpr FSlateRect(float InLeft, float InTop, float InRight, float InBottom)
		: Left(InLeft)
		, Top(InTop)
		, Right(InRight)
		, Bottom(InBottom)
	{
	}

	/** Larger than any window, so that nothing is out of it. */
	static constexpr FSlateRect Everything() { return FSlateRect(-1.0e9f, -1.0e9f, 1.0e9f, 1.0e9f); }

	FVector2D GetTopLeft() const { return FVector2D(Left, Top); }
	FVector2D GetSize() const { return FVector2D(Right - Left, Bottom - Top); }
	constexpr bool IsEmpty() const { return !(Right > Left && Bottom > Top); }

	FSlateRect IntersectionWith(const FSlateRect& Other) const;

	/** The smallest rectangle around both; an empty one adds nothing. */
	FSlateRect Expand(const FSlateRect& Other) const;
	FSlateRect ExtendBy(float Amount) const { return FSlateRect(Left - Amount, Top - Amount, Right + Amount, Bottom + Amount); }

	constexpr bool ContainsPoint(const FVector2D& Point) const
	{
		return Point.X >= Left && Point.X < Right && Point.Y >= Top && Point.Y < Bottom;
	}
	constexpr bool operator==(const FSlateRect&) const = default;

	/** Touching counts, so that something without size is not lost. */
	static constexpr bool DoRectanglesIntersect(const FSlateRect& A, const FSlateRect& B)
	{
		return A.Left <= B.Right && B.Left <= A.Right && A.Top <= B.Bottom && B.Top <= A.Bottom;
	}
};
