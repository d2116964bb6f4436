// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Math/Color.h"

#include <string>

static float LinearFromSRGB(uint8 Channel)
{
	const float Value = static_cast<float>(Channel) / 255.0f;
	return Value <= 0.04045f ? Value / 12.92f : std::pow((Value + 0.055f) / 1.055f, 2.4f);
}

static float SRGBFromLinear(float Value)
{
	return Value <= 0.0031308f ? Value * 12.92f : 1.055f * std::pow(Value, 1.0f / 2.4f) - 0.055f;
}

static uint8 Quantize(float Value)
{
	return static_cast<uint8>(FMath::FloorToInt(FMath::Clamp(Value, 0.0f, 1.0f) * 255.0f + 0.5f));
}

FString FColor::ToHex() const
{
	return FString::Printf(TEXT("%02X%02X%02X%02X"), R, G, B, A);
}

FLinearColor::FLinearColor(const FColor& Color)
	: R(LinearFromSRGB(Color.R))
	, G(LinearFromSRGB(Color.G))
	, B(LinearFromSRGB(Color.B))
	, A(static_cast<float>(Color.A) / 255.0f)
{
}

FColor FLinearColor::ToFColor(bool bSRGB) const
{
	const auto Convert = [bSRGB](float Value)
	{
		return Quantize(bSRGB ? SRGBFromLinear(Value) : Value);
	};
	return {Convert(R), Convert(G), Convert(B), Quantize(A)};
}

bool FLinearColor::Equals(const FLinearColor& C, float Tolerance) const
{
	return FMath::IsNearlyEqual(R, C.R, Tolerance) && FMath::IsNearlyEqual(G, C.G, Tolerance) && FMath::IsNearlyEqual(B, C.B, Tolerance) &&
		   FMath::IsNearlyEqual(A, C.A, Tolerance);
}
