// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/Printers.h"

#include <gtest/gtest.h>

TEST(MathTest, RoundsTowardsPlusInfinityAtHalves)
{
	EXPECT_EQ(FMath::RoundToInt(2.5f), 3);
	EXPECT_EQ(FMath::RoundToInt(-2.5f), -2);
	EXPECT_EQ(FMath::FloorToInt(-0.1f), -1);
	EXPECT_EQ(FMath::CeilToInt(0.1f), 1);
	EXPECT_EQ(FMath::Clamp(5, 0, 3), 3);
}

TEST(ColorTest, ConvertsBetweenLinearAndSrgb)
{
	EXPECT_EQ(FLinearColor(0.5f, 0.0f, 1.0f).ToFColor(true), FColor(188, 0, 255));
	EXPECT_EQ(FLinearColor(0.5f, 0.0f, 1.0f, 0.5f).ToFColor(false), FColor(128, 0, 255, 128));
	EXPECT_EQ(FLinearColor(2.0f, -1.0f, 0.0f).ToFColor(true), FColor(255, 0, 0));
	for (int32 Value = 0; Value < 256; ++Value)
	{
		const uint8 Channel = static_cast<uint8>(Value);
		EXPECT_EQ(FLinearColor(FColor(Channel, Channel, Channel, Channel)).ToFColor(true), FColor(Channel, Channel, Channel, Channel));
	}
}
