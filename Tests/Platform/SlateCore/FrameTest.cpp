// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Application/SlateApplication.h"
#include "Support/Probe.h"
#include "Support/UserDriver.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SWindow.h"

#include <gtest/gtest.h>

// Bound attributes and ticking: what a frame reads and runs before layout.

namespace
{
/** Ticks, by an override that none but the application can call. */
class STickingProbe : public SProbe
{
public:
	TArray<float> Steps;

private:
	void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override
	{
		SProbe::Tick(AllottedGeometry, InCurrentTime, InDeltaTime);
		Steps.Add(InDeltaTime);
	}
};
} // namespace

TEST(BoundAttributes, AreReadOnceAFrameBeforeLayoutAndOnlyInView)
{
	FVector2D Size(20.0, 10.0);
	int32 NumRead = 0;
	const auto ReadSize = [&]
	{
		++NumRead;
		return Size;
	};
	const TSharedRef<SProbe> Above = SNew(SProbe);
	const TSharedRef<SProbe> Probe = SNew(SProbe).BoundSize_Lambda(ReadSize);
	EXPECT_EQ(NumRead, 0) << "not while the widget is built";
	FUserDriver User(SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[Above] + SVerticalBox::Slot().AutoHeight()[Probe],
		FVector2D(100.0, 100.0), 1.0f, EDriverFonts::Even);
	const auto CountReads = [&]
	{
		NumRead = 0;
		User.AdvanceTime(0.0f);
		return NumRead;
	};
	EXPECT_EQ(CountReads(), 1);
	EXPECT_EQ(FSlateApplication::Get().GetFrameStats().NumAttributesRead, 1);
	EXPECT_EQ(FSlateApplication::Get().GetFrameStats().NumLayoutPasses, 0) << "the same value changes nothing";
	Size.Y = 40.0;
	User.AdvanceTime(0.0f);
	EXPECT_EQ(Probe->GetCachedGeometry().GetLocalSize().Y, 40.0) << "in the frame that read it";

	Above->SetSize(FVector2D(10.0, 1000.0));
	User.Frame();
	Size.Y = 33.0;
	EXPECT_EQ(CountReads(), 0);
	Above->SetSize(FVector2D(10.0, 10.0));
	EXPECT_EQ(CountReads(), 1);
	EXPECT_EQ(Probe->GetCachedGeometry().GetLocalSize().Y, 33.0) << "up to date when it comes into view";
}

TEST(BoundAttributes, ABoundVisibilityBringsACollapsedWidgetBack)
{
	bool bShown = false;
	const TSharedRef<SProbe> Probe =
		SNew(SProbe).Visibility_Lambda([&bShown] { return bShown ? EVisibility::Visible : EVisibility::Collapsed; });
	FUserDriver User(SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[Probe], FVector2D(100.0, 100.0), 1.0f, EDriverFonts::Even);
	EXPECT_EQ(Probe->NumPainted, 0);
	bShown = true;
	User.AdvanceTime(0.0f);
	EXPECT_EQ(Probe->NumPainted, 1);
}

TEST(Ticking, AWidgetTicksAndKeepsTheFramesComingWhileItIsInView)
{
	const TSharedRef<SProbe> Above = SNew(SProbe);
	const TSharedRef<STickingProbe> Probe = SNew(STickingProbe);
	FUserDriver User(SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[Above] + SVerticalBox::Slot().AutoHeight()[Probe],
		FVector2D(100.0, 100.0), 1.0f, EDriverFonts::Even);
	const auto CountTicks = [&]
	{
		User.Frame();
		Probe->Steps.Empty();
		User.AdvanceTime(1.0f);
		return Probe->Steps.Num();
	};
	EXPECT_GT(CountTicks(), 0);
	Probe->Steps.Empty();
	FSlateApplication::Get().Tick(0.25f);
	EXPECT_EQ(Probe->Steps, TArray<float>({0.25f}));
	EXPECT_TRUE(FSlateApplication::Get().IsFrameRequested());
	EXPECT_EQ(FSlateApplication::Get().GetFrameStats().NumPainted, 0) << "it changed nothing";
	Probe->SetVisibility(EVisibility::Collapsed);
	EXPECT_EQ(CountTicks(), 0);
	EXPECT_FALSE(FSlateApplication::Get().IsFrameRequested());
	Probe->SetVisibility(EVisibility::Hidden);
	EXPECT_EQ(CountTicks(), 0);
	Probe->SetVisibility(EVisibility::Visible);
	Above->SetSize(FVector2D(10.0, 1000.0));
	EXPECT_EQ(CountTicks(), 0);
	EXPECT_FALSE(FSlateApplication::Get().IsFrameRequested());
	Above->SetSize(FVector2D(10.0, 10.0));
	EXPECT_GT(CountTicks(), 0);
}
