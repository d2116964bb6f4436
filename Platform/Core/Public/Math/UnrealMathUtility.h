// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreTypes.h"
#include <algorithm>
#include <cmath>

inline constexpr float UE_PI = 3.1415926535897932f;
inline constexpr double UE_DOUBLE_PI = 3.141592653589793238462643383279502884;
inline constexpr float UE_TWO_PI = 2.0f * UE_PI;
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
	template <typename T>
	static constexpr T Square(T A)
	{
		return A * A;
	}
	template <typename T, typename U>
	static constexpr T Lerp(const T& A, const T& B, const U& Alpha)
	{
		return static_cast<T>(A + (B - A) * Alpha);
	}

	static float Sin(float Value) { return std::sin(Value); }
	static double Sin(double Value) { return std::sin(Value); }
	static float Cos(float Value) { return std::cos(Value); }
	static double Cos(double Value) { return std::cos(Value); }
	static float Sqrt(float Value) { return std::sqrt(Value); }
	static double Sqrt(double Value) { return std::sqrt(Value); }
	static float Pow(float A, float B) { return std::pow(A, B); }
	static float Fmod(float X, float Y) { return std::fmod(X, Y); }
	static double Fmod(double X, double Y) { return std::fmod(X, Y); }
	static float Frac(float Value) { return Value - std::floor(Value); }

	static float FloorToFloat(float F) { return std::floor(F); }
	static float CeilToFloat(float F) { return std::ceil(F); }
	// Halves go up.
	static float RoundToFloat(float F) { return std::floor(F + 0.5f); }
	static int32 FloorToInt(float F) { return static_cast<int32>(std::floor(F)); }
	static int32 FloorToInt(double F) { return static_cast<int32>(std::floor(F)); }
	static int32 CeilToInt(float F) { return static_cast<int32>(std::ceil(F)); }
	static int32 CeilToInt(double F) { return static_cast<int32>(std::ceil(F)); }
	static int32 RoundToInt(float F) { return FloorToInt(F + 0.5f); }
	static int32 RoundToInt(double F) { return FloorToInt(F + 0.5); }
	static int32 TruncToInt(float F) { return static_cast<int32>(F); }

	static bool IsNearlyEqual(float A, float B, float ErrorTolerance = UE_SMALL_NUMBER) { return Abs(A - B) <= ErrorTolerance; }
	static bool IsNearlyEqual(double A, double B, double ErrorTolerance = 1.e-8) { return Abs(A - B) <= ErrorTolerance; }
	static bool IsNearlyZero(float Value, float ErrorTolerance = UE_SMALL_NUMBER) { return Abs(Value) <= ErrorTolerance; }
	static bool IsNearlyZero(double Value, double ErrorTolerance = 1.e-8) { return Abs(Value) <= ErrorTolerance; }
	static bool IsFinite(double Value) { return std::isfinite(Value); }
};
