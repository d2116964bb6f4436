// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreTypes.h"
#include <algorithm>
#include <cmath>

inline constexpr float UE_SMALL_NUMBER = 1.e-8f;
inline constexpr float UE_KINDA_SMALL_NUMBER = 1.e-4f;

struct FMath
{
	template <typename T>
	static constexpr T Min(T A, T B)
	{
		return B < A ? B : A;
	}
	template <typename T>
	static constexpr T Max(T A, T B)
	{
		return A < B ? B : A;
	}
	template <typename T>
	static constexpr T Clamp(T X, T MinValue, T MaxValue)
	{
		return Max(Min(X, MaxValue), MinValue);
	}
	template <typename T>
	static constexpr T Abs(T A)
	{
		return A < T(0) ? -A : A;
	}

	static float Sin(float Value) { return std::sin(Value); }
	static double Sin(double Value) { return std::sin(Value); }

	static float CeilToFloat(float F) { return std::ceil(F); }
	// Halves go up.
	static float RoundToFloat(float F) { return std::floor(F + 0.5f); }
	static int32 FloorToInt(float F) { return static_cast<int32>(std::floor(F)); }
	static int32 FloorToInt(double F) { return static_cast<int32>(std::floor(F)); }
	static int32 CeilToInt(float F) { return static_cast<int32>(std::ceil(F)); }
	static int32 CeilToInt(double F) { return static_cast<int32>(std::ceil(F)); }
	static int32 RoundToInt(float F) { return FloorToInt(F + 0.5f); }
	static int32 RoundToInt(double F) { return FloorToInt(F + 0.5); }

	static bool IsNearlyEqual(float A, float B, float ErrorTolerance = UE_SMALL_NUMBER) { return Abs(A - B) <= ErrorTolerance; }
	static bool IsNearlyEqual(double A, double B, double ErrorTolerance = 1.e-8) { return Abs(A - B) <= ErrorTolerance; }
};
