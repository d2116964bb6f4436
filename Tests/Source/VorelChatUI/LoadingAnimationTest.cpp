// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/SLoadingAnimation.h"
#include "Chat/SLoadingMessageItem.h"
#include "Support/UserDriver.h"
#include "Widgets.h"
#include "Widgets/SBoxPanel.h"
#include <gtest/gtest.h>

namespace
{

// How far each dot stands below its place, in units.
void ExpectOffsets(const TSharedRef<SWidget>& Animation, float Phase, float Speed)
{
	for (size_t Index = 0; Index < 3; ++Index)
	{
		const FVector2D Offset = FindOne(Animation, TEXT("SImage"), Index)->GetRenderTransform()->GetTranslation();
		const float Expected = 3.0f * std::sin((Phase - 0.33f * static_cast<float>(Index)) * 4.0f * Speed);
		EXPECT_EQ(Offset.X, 0.0);
		EXPECT_NEAR(Offset.Y, Expected, 1e-4f) << Index;
	}
}

} // namespace

TEST(LoadingAnimation, DotsBobInATravellingWaveWhoseSpeedEntersTwiceAndIsReadAgain)
{
	float Speed = 1.0f;
	float Phase = 0.0f;
	const TSharedRef<SLoadingAnimation> Animation = SNew(SLoadingAnimation).Speed_Lambda([&Speed] { return Speed; });
	FUserDriver User(Animation, FVector2D(100.0, 20.0));
	for (const auto& [NewSpeed, Seconds] : {std::pair(1.0f, 0.0f), {1.0f, 0.25f}, {2.0f, 0.25f}, {0.0f, 10.0f}, {1.0f, 0.25f}})
	{
		Speed = NewSpeed;
		Phase += NewSpeed * Seconds;
		User.AdvanceTime(Seconds);
		ExpectOffsets(Animation, Phase, Speed);
	}
}

TEST(LoadingAnimation, TheMessageItemHasTheRoleOverTheDots)
{
	// In a box, so that the item takes the height it wishes for.
	const TSharedRef<SLoadingMessageItem> Item = SNew(SLoadingMessageItem);
	FUserDriver User(SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[Item], FVector2D(200.0, 200.0));
	User.AdvanceTime(0.0f);
	EXPECT_EQ(ReadTexts(Item), "Vorel");
	for (size_t Index = 0; Index < 3; ++Index)
	{
		const FGeometry& Dot = FindOne(Item, TEXT("SImage"), Index)->GetCachedGeometry();
		EXPECT_EQ(Dot.GetLocalSize(), FVector2D(6.0, 6.0));
		EXPECT_EQ(Dot.GetAbsolutePosition().X, 11.0 + 9.0 * static_cast<double>(Index));
	}
}
