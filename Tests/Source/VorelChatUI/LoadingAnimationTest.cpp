// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/SLoadingAnimation.h"
#include "Chat/SLoadingMessageItem.h"
#include "Internationalization/Text.h"
#include "Support/UserDriver.h"
#include "Widgets.h"
#include "Widgets/SBoxPanel.h"
#include <gtest/gtest.h>

namespace
{

// How far each dot stands below its place, in units.
std::vector<float> ReadOffsets(const TSharedRef<SWidget>& Animation)
{
	std::vector<float> Offsets;
	for (const TSharedRef<SWidget>& Dot : FindAll(Animation, TEXT("SImage")))
	{
		const TOptional<FSlateRenderTransform> Transform = Dot->GetRenderTransform();
		EXPECT_TRUE(Transform.IsSet());
		EXPECT_EQ(Transform->GetTranslation().X, 0.0);
		Offsets.push_back(static_cast<float>(Transform->GetTranslation().Y));
	}
	return Offsets;
}

void ExpectOffsets(const TSharedRef<SWidget>& Animation, float Phase, float Speed)
{
	const std::vector<float> Offsets = ReadOffsets(Animation);
	ASSERT_EQ(Offsets.size(), 3u);
	for (size_t Index = 0; Index < 3; ++Index)
	{
		const float Expected = 3.0f * std::sin((Phase - 0.33f * static_cast<float>(Index)) * 4.0f * Speed);
		EXPECT_NEAR(Offsets[Index], Expected, 1e-4f) << Index;
	}
}

} // namespace

TEST(LoadingAnimation, DotsBobInATravellingWave)
{
	const TSharedRef<SLoadingAnimation> Animation = SNew(SLoadingAnimation);
	FUserDriver User(Animation, FVector2D(100.0, 20.0));
	User.AdvanceTime(0.0f);
	ExpectOffsets(Animation, 0.0f, 1.0f);
	User.AdvanceTime(0.25f);
	ExpectOffsets(Animation, 0.25f, 1.0f);
	User.AdvanceTime(0.0f);
	ExpectOffsets(Animation, 0.25f, 1.0f);
}

TEST(LoadingAnimation, SpeedEntersTwiceAndIsReadAgain)
{
	float Speed = 2.0f;
	const TSharedRef<SLoadingAnimation> Animation = SNew(SLoadingAnimation).Speed_Lambda([&Speed] { return Speed; });
	FUserDriver User(Animation, FVector2D(100.0, 20.0));
	User.AdvanceTime(0.25f);
	ExpectOffsets(Animation, 0.5f, 2.0f);
	Speed = 0.0f;
	User.AdvanceTime(10.0f);
	EXPECT_EQ(ReadOffsets(Animation), std::vector<float>({0.0f, 0.0f, 0.0f}));
	Speed = 1.0f;
	User.AdvanceTime(0.25f);
	ExpectOffsets(Animation, 0.75f, 1.0f);
}

TEST(LoadingAnimation, StandsStillWhileItIsCollapsed)
{
	const TSharedRef<SLoadingAnimation> Animation = SNew(SLoadingAnimation);
	FUserDriver User(Animation, FVector2D(100.0, 20.0));
	User.AdvanceTime(0.25f);
	Animation->SetVisibility(EVisibility::Collapsed);
	User.AdvanceTime(0.25f);
	Animation->SetVisibility(EVisibility::Visible);
	User.AdvanceTime(0.0f);
	ExpectOffsets(Animation, 0.25f, 1.0f);
}

TEST(LoadingAnimation, TheMessageItemHasTheRoleOverTheDots)
{
	// In a box, so that the item takes the height it wishes for.
	const TSharedRef<SLoadingMessageItem> Item = SNew(SLoadingMessageItem);
	// clang-format off
	FUserDriver User(
		SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			Item
		],
		FVector2D(200.0, 200.0));
	// clang-format on
	User.AdvanceTime(0.0f);
	EXPECT_EQ(ReadTexts(Item), "Vorel");
	const std::vector<TSharedRef<SWidget>> Dots = FindAll(Item, TEXT("SImage"));
	ASSERT_EQ(Dots.size(), 3u);
	for (size_t Index = 0; Index < Dots.size(); ++Index)
	{
		EXPECT_EQ(Dots[Index]->GetCachedGeometry().GetLocalSize(), FVector2D(6.0, 6.0));
		EXPECT_EQ(Dots[Index]->GetCachedGeometry().GetAbsolutePosition().X, 11.0 + 9.0 * static_cast<double>(Index));
	}
}
