// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Math/UnrealMathUtility.h"
#include "Templates/TypeHash.h"

template <typename T>
struct TVector2
{
	T X;
	T Y;

	constexpr TVector2()
		: X(0)
		, Y(0)
	{
	}

	constexpr TVector2(T InX, T InY)
		: X(InX)
		, Y(InY)
	{
	}

	constexpr explicit TVector2(T Both)
		: X(Both)
		, Y(Both)
	{
	}

	// Without loss from float to double, on request the other way.
	template <typename U>
	requires(!std::is_same_v<U, T>) constexpr explicit(sizeof(U) > sizeof(T)) TVector2(const TVector2<U>& Other)
		: X(static_cast<T>(Other.X))
		, Y(static_cast<T>(Other.Y))
	{
	}

	static const TVector2 ZeroVector;
	static constexpr TVector2 Zero() { return TVector2(); }

	constexpr TVector2 operator+(const TVector2& V) const { return {X + V.X, Y + V.Y}; }
	constexpr TVector2 operator-(const TVector2& V) const { return {X - V.X, Y - V.Y}; }
	constexpr TVector2 operator*(const TVector2& V) const { return {X * V.X, Y * V.Y}; }
	constexpr TVector2 operator/(const TVector2& V) const { return {X / V.X, Y / V.Y}; }
	constexpr TVector2 operator*(T Scale) const { return {X * Scale, Y * Scale}; }
	constexpr TVector2 operator/(T Scale) const { return {X / Scale, Y / Scale}; }
	constexpr TVector2 operator-() const { return {-X, -Y}; }
	constexpr TVector2& operator+=(const TVector2& V) { return *this = *this + V; }
	constexpr TVector2& operator-=(const TVector2& V) { return *this = *this - V; }
	constexpr TVector2& operator*=(T Scale) { return *this = *this * Scale; }
	friend constexpr TVector2 operator*(T Scale, const TVector2& V) { return V * Scale; }
	friend constexpr bool operator==(const TVector2&, const TVector2&) = default;

	T Size() const { return std::sqrt(SizeSquared()); }
	constexpr T SizeSquared() const { return X * X + Y * Y; }
	constexpr bool IsZero() const { return X == 0 && Y == 0; }
	bool Equals(const TVector2& V, T Tolerance = T(UE_KINDA_SMALL_NUMBER)) const
	{
		return FMath::Abs(X - V.X) <= Tolerance && FMath::Abs(Y - V.Y) <= Tolerance;
	}

	friend uint32 GetTypeHash(const TVector2& V) { return HashCombine(::GetTypeHash(V.X), ::GetTypeHash(V.Y)); }
};

template <typename T>
inline constexpr TVector2<T> TVector2<T>::ZeroVector = TVector2<T>(0, 0);

using FVector2D = TVector2<double>;
using FVector2f = TVector2<float>;
