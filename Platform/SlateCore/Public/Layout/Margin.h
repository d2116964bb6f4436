// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Types/SlateEnums.h"

/** Room on the four sides of a rectangle, in units. */
struct FMargin
{
	float Left = 0.0f;
	float Top = 0.0f;
	float Right = 0.0f;
	float Bottom = 0.0f;

	constexpr FMargin() = default;
	constexpr FMargin(float Uniform)
		: Left(Uniform)
		, Top(Uniform)
		, Right(Uniform)
		, Bottom(Uniform)
	{
	}
	constexpr FMargin(float Horizontal, float Vertical)
		: Left(Horizontal)
		, Top(Vertical)
		, Right(Horizontal)
		, Bottom(Vertical)
	{
	}
	constexpr FMargin(float InLeft, float InTop, float InRight, float InBottom)
		: Left(InLeft)
		, Top(InTop)
		, Right(InRight)
		, Bottom(InBottom)
	{
	}

	FVector2D GetTopLeft() const { return FVector2D(Left, Top); }
	FVector2D GetDesiredSize() const { return FVector2D(Left + Right, Top + Bottom); }

	constexpr FMargin operator+(const FMargin& Other) const
	{
		return FMargin(Left + Other.Left, Top + Other.Top, Right + Other.Right, Bottom + Other.Bottom);
	}
	constexpr bool operator==(const FMargin&) const = default;
};
