// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "WrappingProbe.h"

#include "Framework/Application/SlateApplication.h"
#include "Support/Probe.h"
#include "Support/UserDriver.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWindow.h"

#include <gtest/gtest.h>

namespace
{
const FSlateFrameStats& Stats()
{
	return FSlateApplication::Get().GetFrameStats();
}

FVector2D PositionOf(const SWidget& Widget)
{
	return Widget.GetCachedGeometry().GetAccumulatedLayoutTransform().Translation;
}

FVector2D SizeOf(const SWidget& Widget)
{
	return Widget.GetCachedGeometry().GetLocalSize();
}

/** Two columns of two probes each. */
class LayoutPasses : public testing::Test
{
protected:
	LayoutPasses()
	{
		for (TSharedPtr<SProbe>& Probe : Probes)
		{
			Probe = SNew(SProbe);
		}
		for (int32 Index = 0; Index < 4; ++Index)
		{
			(Index < 2 ? Left : Right)->AddSlot().AutoHeight()[Probes[Index].ToSharedRef()];
		}
		User.Emplace(SNew(SHorizontalBox) + SHorizontalBox::Slot().AutoWidth()[Left] + SHorizontalBox::Slot().AutoWidth()[Right],
			FVector2D(100.0, 100.0), 1.0f, EDriverFonts::Even);
	}

	TSharedPtr<SProbe> Probes[4];
	TSharedRef<SVerticalBox> Left = SNew(SVerticalBox);
	TSharedRef<SVerticalBox> Right = SNew(SVerticalBox);
	TOptional<FUserDriver> User;
};
} // namespace

TEST_F(LayoutPasses, AnIdleApplicationAsksForNoFrameAndAFrameThatRunsAllTheSameDoesNothing)
{
	EXPECT_FALSE(FSlateApplication::Get().IsFrameRequested());
	User->GetDesktop().NumFramesRequested = 0;
	User->AdvanceTime(1.0f);
	EXPECT_EQ(User->GetDesktop().NumFramesRequested, 0);
	EXPECT_EQ(Stats().NumDesiredSizes + Stats().NumArranged + Stats().NumPainted + Stats().NumLayoutPasses, 0);
}

TEST_F(LayoutPasses, ANewSizeMovesWhatFollowsAndLeavesTheRestAlone)
{
	Probes[0]->SetSize(FVector2D(20.0, 25.0));
	User->Frame();
	EXPECT_EQ(PositionOf(*Probes[1]), FVector2D(0.0, 25.0));
	EXPECT_EQ(Probes[0]->NumSized, 2);
	EXPECT_EQ(Probes[1]->NumSized, 1);
	EXPECT_EQ(Probes[1]->NumPainted, 2) << "it moved";
	EXPECT_EQ(Probes[2]->NumSized + Probes[2]->NumArranged + Probes[2]->NumPainted, 3) << "the other column was not touched";
	EXPECT_EQ(Stats().NumDesiredSizes, 4) << "the probe, its column, the row, the window";
}

TEST_F(LayoutPasses, ASizeThatStaysTheSameEndsThereAndPaintAloneLaysNothingOut)
{
	Probes[0]->Invalidate(EInvalidateWidgetReason::Layout);
	User->Frame();
	EXPECT_EQ(Stats().NumDesiredSizes, 1);
	const int32 NumPaintedBefore = Probes[1]->NumPainted;
	Probes[0]->Invalidate(EInvalidateWidgetReason::Paint);
	User->Frame();
	EXPECT_EQ(Stats().NumLayoutPasses, 0);
	EXPECT_EQ(Stats().NumPainted, 4) << "the probe, its column, the row, the window";
	EXPECT_EQ(Probes[1]->NumPainted, NumPaintedBefore);
}

TEST_F(LayoutPasses, WhatChangesInACollapsedBoxCostsNothingUntilItShows)
{
	Left->SetVisibility(EVisibility::Collapsed);
	User->Frame();
	User->GetDesktop().NumFramesRequested = 0;
	Probes[1]->SetSize(FVector2D(44.0, 33.0));
	Probes[0]->Invalidate(EInvalidateWidgetReason::Paint);
	Probes[0]->SetVisibility(EVisibility::Collapsed);
	EXPECT_EQ(User->GetDesktop().NumFramesRequested, 0);
	Left->SetVisibility(EVisibility::Visible);
	User->Frame();
	EXPECT_EQ(SizeOf(*Probes[1]), FVector2D(44.0, 33.0));
	EXPECT_EQ(PositionOf(*Probes[1]), FVector2D(0.0, 0.0));
	EXPECT_EQ(PositionOf(*Probes[2]), FVector2D(44.0, 0.0));
}

TEST_F(LayoutPasses, AWidgetThatIsPutElsewhereLeavesItsFormerPlace)
{
	Right->AddSlot().AutoHeight()[Probes[0].ToSharedRef()];
	User->Frame();
	EXPECT_EQ(PositionOf(*Probes[0]), FVector2D(20.0, 20.0));
	EXPECT_EQ(PositionOf(*Probes[1]), FVector2D(0.0, 0.0));
	EXPECT_EQ(Left->GetChildren()->GetChildAt(0), SNullWidget::NullWidget);
}

TEST_F(LayoutPasses, ScaleTurnsUnitsIntoPixelsAndAsksForEverySizeAnew)
{
	User->SetScale(2.0f);
	EXPECT_EQ(Probes[3]->NumSized, 2);
	EXPECT_EQ(PositionOf(*Probes[3]), FVector2D(40.0, 20.0));
	EXPECT_EQ(SizeOf(*Probes[3]), FVector2D(20.0, 10.0));
	EXPECT_EQ(User->GetWindow()->GetClientSizeInPixels(), FVector2D(200.0, 200.0));
}

TEST(WrappingLayout, AHeightThatFollowsFromTheWidthIsThereInTheSameFrame)
{
	const TSharedRef<SWrappingProbe> Text = SNew(SWrappingProbe).Area(1000.0f);
	const TSharedRef<SProbe> Below = SNew(SProbe);
	FUserDriver User(SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[Text] + SVerticalBox::Slot().AutoHeight()[Below],
		FVector2D(100.0, 100.0), 1.0f, EDriverFonts::Even);
	EXPECT_EQ(Stats().NumLayoutPasses, 2);
	EXPECT_EQ(PositionOf(*Below), FVector2D(0.0, 10.0));
	EXPECT_EQ(Below->NumPainted, 1) << "nothing is painted in between";

	User.Resize(FVector2D(50.0, 100.0));
	EXPECT_EQ(PositionOf(*Below), FVector2D(0.0, 20.0));
	EXPECT_EQ(Stats().NumLayoutPasses, 2);
	Text->SetArea(2000.0f);
	User.Frame();
	EXPECT_EQ(PositionOf(*Below), FVector2D(0.0, 40.0));
	EXPECT_EQ(Stats().NumLayoutPasses, 1) << "the width is known";
}

namespace
{
/** Never content with its height. */
class SRestlessProbe : public SWrappingProbe
{
protected:
	void OnArranged(const FGeometry&) override { Invalidate(EInvalidateWidgetReason::Layout); }
};
} // namespace

TEST(WrappingLayout, LayoutThatNeverSettlesIsCutOffAndDrawn)
{
	FUserDriver User(SNew(SRestlessProbe), FVector2D(100.0, 100.0), 1.0f, EDriverFonts::Even);
	EXPECT_EQ(Stats().NumLayoutPasses, SWidget::MaxLayoutPasses);
	EXPECT_TRUE(User.GetWindow()->GetDisplayList().IsValid());
}
