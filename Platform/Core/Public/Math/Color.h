// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/UnrealString.h"
#include "Math/UnrealMathUtility.h"

// Eight bits a channel, in sRGB.
struct FColor
{
	uint8 B = 0;
	uint8 G = 0;
	uint8 R = 0;
	uint8 A = 0;

	constexpr FColor() = default;
	constexpr FColor(uint8 InR, uint8 InG, uint8 InB, uint8 InA = 255)
		: B(InB)
		, G(InG)
		, R(InR)
		, A(InA)
	{
	}

	FString ToHex() const;

	static const FColor White;
	static const FColor Black;
	static const FColor Transparent;

	friend constexpr bool operator==(const FColor&, const FColor&) = default;
};

inline constexpr FColor FColor::White{255, 255, 255, 255};
inline constexpr FColor FColor::Black{0, 0, 0, 255};
inline constexpr FColor FColor::Transparent{0, 0, 0, 0};

// Linear channels, usually between 0 and 1; converted to sRGB when painted.
struct FLinearColor
{
	float R = 0.0f;
	float G = 0.0f;
	float B = 0.0f;
	float A = 0.0f;

	constexpr FLinearColor() = default;
	constexpr FLinearColor(float InR, float InG, float InB, float InA = 1.0f)
		: R(InR)
		, G(InG)
		, B(InB)
		, A(InA)
	{
	}

	// Reads sRGB.
	FLinearColor(const FColor& Color);

	// Clamps each channel. Without bSRGB the numbers are only scaled.
	FColor ToFColor(bool bSRGB) const;

	constexpr FLinearColor operator+(const FLinearColor& C) const { return {R + C.R, G + C.G, B + C.B, A + C.A}; }
	constexpr FLinearColor operator-(const FLinearColor& C) const { return {R - C.R, G - C.G, B - C.B, A - C.A}; }
	constexpr FLinearColor operator*(const FLinearColor& C) const { return {R * C.R, G * C.G, B * C.B, A * C.A}; }
	constexpr FLinearColor operator*(float Scalar) const { return {R * Scalar, G * Scalar, B * Scalar, A * Scalar}; }
	constexpr FLinearColor CopyWithNewOpacity(float NewOpacity) const { return {R, G, B, NewOpacity}; }

	bool Equals(const FLinearColor& C, float Tolerance = UE_KINDA_SMALL_NUMBER) const;

	static const FLinearColor White;
	static const FLinearColor Gray;
	static const FLinearColor Black;
	static const FLinearColor Transparent;
	static const FLinearColor Red;
	static const FLinearColor Green;

	friend constexpr bool operator==(const FLinearColor&, const FLinearColor&) = default;
};

inline constexpr FLinearColor FLinearColor::White{1.0f, 1.0f, 1.0f};
inline constexpr FLinearColor FLinearColor::Gray{0.5f, 0.5f, 0.5f};
inline constexpr FLinearColor FLinearColor::Black{0.0f, 0.0f, 0.0f};
inline constexpr FLinearColor FLinearColor::Transparent{0.0f, 0.0f, 0.0f, 0.0f};
inline constexpr FLinearColor FLinearColor::Red{1.0f, 0.0f, 0.0f};
inline constexpr FLinearColor FLinearColor::Green{0.0f, 1.0f, 0.0f};
