// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Application/SlateApplication.h"
#include "Support/Probe.h"
#include "Support/UserDriver.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/SWindow.h"

#include <gtest/gtest.h>

namespace
{
/** A wide probe below a narrow one, on a desktop of 100 by 100. */
class InputRouting : public testing::Test
{
protected:
	FString Events() { return Lower->TakeEvents() + TEXT(" / ") + Upper->TakeEvents(); }

	TSharedRef<SProbe> Lower = SNew(SProbe).Focusable(true);
	TSharedRef<SProbe> Upper = SNew(SProbe).Focusable(true);
	// clang-format off
	TSharedRef<SOverlay> Root =
		SNew(SOverlay)
		+ SOverlay::Slot()[Lower]
		+ SOverlay::Slot().HAlign(HAlign_Left).VAlign(VAlign_Top)[Upper];
	// clang-format on
	FUserDriver User{Root, FVector2D(100.0, 100.0), 1.0f, EDriverFonts::Even};
	const FVector2D OnUpper = FVector2D(5.0, 5.0);
	const FVector2D OnLower = FVector2D(50.0, 50.0);
};
} // namespace

TEST_F(InputRouting, TheUppermostUnderTheMouseIsAsked)
{
	User.MoveTo(OnUpper);
	EXPECT_EQ(Events(), TEXT(" / enter, move"));
	User.MoveTo(OnLower);
	EXPECT_EQ(Events(), TEXT("enter, move / leave"));
	User.LeaveWindow();
	EXPECT_EQ(Events(), TEXT("leave / "));

	// The edges on the left and top belong to a widget, and those on the right and bottom do not.
	for (const auto& [Place, bOnUpper] : {TPair<FVector2D, bool>({0.0, 0.0}, true), {{20.0, 5.0}, false}, {{5.0, 10.0}, false}})
	{
		User.MoveTo(Place);
		EXPECT_EQ(Upper->IsHovered(), bOnUpper);
	}
	User.MoveTo(FVector2D(100.0, 100.0));
	EXPECT_FALSE(Lower->IsHovered());
}

TEST_F(InputRouting, WhatCannotBeHitLetsTheMouseThroughAndWhatIsDisabledCoversIt)
{
	Upper->SetEnabled(false);
	User.MoveTo(OnUpper);
	User.ClickAt(OnUpper);
	EXPECT_EQ(Events(), TEXT(" / "));
	for (const EVisibility Visibility :
		{EVisibility::HitTestInvisible, EVisibility::SelfHitTestInvisible, EVisibility::Hidden, EVisibility::Collapsed})
	{
		Upper->SetVisibility(Visibility);
		User.Frame();
		User.MoveTo(OnUpper);
		EXPECT_FALSE(Upper->IsHovered());
		EXPECT_TRUE(Lower->IsHovered());
	}
}

TEST_F(InputRouting, AWidgetThatCapturesGetsEverythingUntilItLetsGoOrDisappears)
{
	Upper->bGreedy = true;
	User.MoveTo(OnUpper);
	User.MouseDown(OnUpper);
	EXPECT_EQ(FSlateApplication::Get().GetMouseCaptor(), Upper);
	Events();
	User.MoveTo(OnLower);
	User.MoveTo(FVector2D(-50.0, 300.0));
	User.WheelAt(OnLower, 1.0f);
	EXPECT_EQ(Events(), TEXT(" / leave, move, move, wheel")) << "also beyond the window";
	User.MouseUp(OnLower);
	EXPECT_EQ(Events(), TEXT("enter / up LeftMouseButton, lost capture"));

	User.MouseDown(OnUpper);
	Upper->SetVisibility(EVisibility::Collapsed);
	User.Frame();
	EXPECT_FALSE(FSlateApplication::Get().GetMouseCaptor().IsValid());
	EXPECT_TRUE(Lower->IsHovered()) << "which lies under the resting mouse now";
}

TEST_F(InputRouting, AFocusedWidgetThatDisappearsOrIsDisabledLosesTheFocusWhichTabMoves)
{
	User.ClickAt(OnUpper);
	Root->SetVisibility(EVisibility::Collapsed);
	User.Frame();
	EXPECT_FALSE(User.GetFocused().IsValid());
	Root->SetVisibility(EVisibility::Visible);
	User.Frame();
	User.ClickAt(OnUpper);
	Upper->SetEnabled(false);
	User.Frame();
	EXPECT_FALSE(User.GetFocused().IsValid());
	Upper->SetEnabled(true);

	// Tab walks round, and Shift+Tab back.
	const auto FocusedBy = [this](const TCHAR* Key)
	{
		User.Press(Key);
		return User.GetFocused();
	};
	EXPECT_EQ(FocusedBy(TEXT("Tab")), Lower);
	EXPECT_EQ(FocusedBy(TEXT("Tab")), Upper);
	EXPECT_EQ(FocusedBy(TEXT("Tab")), Lower);
	EXPECT_EQ(FocusedBy(TEXT("Shift+Tab")), Upper);
	Lower->SetEnabled(false);
	EXPECT_EQ(FocusedBy(TEXT("Tab")), Upper) << "there is no other";
}

TEST(Clipping, WhatIsClippedAwayCannotBeHit)
{
	const TSharedRef<SProbe> Large = SNew(SProbe).Size(FVector2D(100.0, 100.0));
	const TSharedRef<SWidget> Inner = SNew(SVerticalBox).Clipping(EWidgetClipping::ClipToBounds) + SVerticalBox::Slot().AutoHeight()[Large];
	FUserDriver User(SNew(SVerticalBox) + SVerticalBox::Slot().FillHeight(1.0f)[Inner] + SVerticalBox::Slot().FillHeight(1.0f),
		FVector2D(100.0, 100.0), 1.0f, EDriverFonts::Even);
	User.MoveTo(FVector2D(10.0, 49.0));
	EXPECT_TRUE(Large->IsHovered());
	User.MoveTo(FVector2D(10.0, 51.0));
	EXPECT_FALSE(Large->IsHovered());
	Inner->SetClipping(EWidgetClipping::Inherit);
	User.Frame();
	EXPECT_TRUE(Large->IsHovered()) << "the resting mouse";
}

TEST(RenderTransforms, MoveWhatIsHitAndTurnAboutTheirPivot)
{
	const TSharedRef<SProbe> Probe = SNew(SProbe).RenderTransform(FSlateRenderTransform(FVector2D(50.0, 0.0)));
	FUserDriver User(Probe, FVector2D(100.0, 100.0), 2.0f, EDriverFonts::Even);
	User.MoveTo(FVector2D(55.0, 5.0));
	EXPECT_TRUE(Probe->IsHovered());
	User.MoveTo(FVector2D(5.0, 5.0));
	EXPECT_FALSE(Probe->IsHovered());
	Probe->SetRenderTransform(FSlateRenderTransform(2.0f));
	Probe->SetRenderTransformPivot(FVector2D(0.5, 0.5));
	User.Frame();
	EXPECT_EQ(Probe->GetCachedGeometry().LocalToAbsolute(FVector2D(0.0, 100.0)), FVector2D(-100.0, 300.0));
	EXPECT_EQ(Probe->GetCachedGeometry().AbsoluteToLocal(FVector2D(-100.0, 300.0)), FVector2D(0.0, 100.0));
}
