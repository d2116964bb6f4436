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

static int32 HexDigit(TCHAR Character)
{
	if (Character >= TEXT('0') && Character <= TEXT('9'))
	{
		return Character - TEXT('0');
	}
	const TCHAR Lower = static_cast<TCHAR>(Character | 0x20);
	return Lower >= TEXT('a') && Lower <= TEXT('f') ? Lower - TEXT('a') + 10 : INDEX_NONE;
}

FColor FColor::FromHex(const FString& HexString)
{
	const FString Digits = HexString.StartsWith(TEXT("#")) ? HexString.RightChop(1) : HexString;
	if (Digits.Len() != 6 && Digits.Len() != 8)
	{
		return Transparent;
	}
	uint8 Channels[4] = {0, 0, 0, 255};
	for (int32 Index = 0; Index < Digits.Len(); ++Index)
	{
		const int32 Digit = HexDigit(Digits[Index]);
		if (Digit == INDEX_NONE)
		{
			return Transparent;
		}
		uint8& Channel = Channels[Index / 2];
		Channel = static_cast<uint8>(Index % 2 == 0 ? Digit * 16 : Channel + Digit);
	}
	return {Channels[0], Channels[1], Channels[2], Channels[3]};
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
