// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Application/SlateApplication.h"
#include "Probes.h"
#include "Support/UserDriver.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SCompoundWidget.h"
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
	EXPECT_FALSE(Lower->IsHovered());
}

TEST_F(InputRouting, TheEdgesBelongToTheWidgetOnTheLeftAndTopOnly)
{
	User.MoveTo(FVector2D(0.0, 0.0));
	EXPECT_TRUE(Upper->IsHovered());
	User.MoveTo(FVector2D(20.0, 5.0));
	EXPECT_FALSE(Upper->IsHovered());
	User.MoveTo(FVector2D(5.0, 10.0));
	EXPECT_FALSE(Upper->IsHovered());
	User.MoveTo(FVector2D(100.0, 100.0));
	EXPECT_FALSE(Lower->IsHovered());
}

TEST_F(InputRouting, WhatCannotBeHitLetsTheMouseThrough)
{
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

TEST_F(InputRouting, ADisabledWidgetGetsNothingAndWhatItStandsInDoes)
{
	Upper->SetEnabled(false);
	User.MoveTo(OnUpper);
	User.ClickAt(OnUpper);
	EXPECT_EQ(Events(), TEXT(" / ")) << "it still covers what is below it";
}

TEST_F(InputRouting, AWidgetThatCapturesGetsEverythingUntilItLetsGo)
{
	Upper->bCaptures = true;
	User.MoveTo(OnUpper);
	User.MouseDown(OnUpper);
	EXPECT_EQ(FSlateApplication::Get().GetMouseCaptor(), Upper);
	Events();
	User.MoveTo(OnLower);
	User.MoveTo(FVector2D(-50.0, 300.0));
	User.WheelAt(OnLower, 1.0f);
	EXPECT_EQ(Events(), TEXT(" / leave, move, move, wheel")) << "also beyond the window";
	User.MouseUp(OnLower);
	EXPECT_EQ(Events(), TEXT("enter / up, lost capture"));
	EXPECT_FALSE(Upper->HasMouseCapture());
}

TEST_F(InputRouting, ACaptorThatDisappearsLosesTheMouse)
{
	Upper->bCaptures = true;
	User.MouseDown(OnUpper);
	Upper->SetVisibility(EVisibility::Collapsed);
	User.Frame();
	EXPECT_FALSE(FSlateApplication::Get().GetMouseCaptor().IsValid());
	EXPECT_TRUE(Lower->IsHovered()) << "which lies under the resting mouse now";
}

TEST_F(InputRouting, AFocusedWidgetThatDisappearsOrIsDisabledLosesTheFocus)
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
}

TEST_F(InputRouting, TabWalksRoundAndShiftTabBack)
{
	User.Press(TEXT("Tab"));
	EXPECT_TRUE(Lower->HasKeyboardFocus());
	User.Press(TEXT("Tab"));
	EXPECT_TRUE(Upper->HasKeyboardFocus());
	User.Press(TEXT("Tab"));
	EXPECT_TRUE(Lower->HasKeyboardFocus());
	User.Press(TEXT("Shift+Tab"));
	EXPECT_TRUE(Upper->HasKeyboardFocus());
	Lower->SetEnabled(false);
	User.Press(TEXT("Tab"));
	EXPECT_TRUE(Upper->HasKeyboardFocus()) << "there is no other";
}

namespace
{
/** Takes keys and the wheel from what it contains. */
class SCatcher : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SCatcher) {}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs) { ChildSlot[InArgs._Content.Widget]; }
	FReply OnKeyDown(const FGeometry&, const FKeyEvent&) override { return Count(); }
	FReply OnMouseWheel(const FGeometry&, const FPointerEvent&) override { return Count(); }

	int32 NumCaught = 0;

private:
	FReply Count()
	{
		++NumCaught;
		return FReply::Handled();
	}
};
} // namespace

TEST(Bubbling, WhatAWidgetLeavesGoesToWhatItStandsIn)
{
	const TSharedRef<SProbe> Inner = SNew(SProbe).Focusable(true);
	const TSharedRef<SCatcher> Outer = SNew(SCatcher)[Inner];
	FUserDriver User(Outer, FVector2D(100.0, 100.0), 1.0f, EDriverFonts::Even);
	User.ClickAt(FVector2D(5.0, 5.0));
	User.Press(TEXT("Enter"));
	User.WheelAt(FVector2D(5.0, 5.0), 1.0f);
	EXPECT_EQ(Outer->NumCaught, 2);
	Inner->bHandles = true;
	User.Press(TEXT("Enter"));
	User.WheelAt(FVector2D(5.0, 5.0), 1.0f);
	EXPECT_EQ(Outer->NumCaught, 2);
}

TEST(Clipping, WhatIsClippedAwayCannotBeHit)
{
	const TSharedRef<SProbe> Large = SNew(SProbe).Size(FVector2D(100.0, 100.0));
	// clang-format off
	const TSharedRef<SWidget> Inner =
		SNew(SVerticalBox).Clipping(EWidgetClipping::ClipToBounds)
		+ SVerticalBox::Slot().AutoHeight()[Large];
	const TSharedRef<SWidget> Root =
		SNew(SVerticalBox)
		+ SVerticalBox::Slot().FillHeight(1.0f)[Inner]
		+ SVerticalBox::Slot().FillHeight(1.0f);
	// clang-format on
	FUserDriver User(Root, FVector2D(100.0, 100.0), 1.0f, EDriverFonts::Even);
	User.MoveTo(FVector2D(10.0, 49.0));
	EXPECT_TRUE(Large->IsHovered());
	User.MoveTo(FVector2D(10.0, 51.0));
	EXPECT_FALSE(Large->IsHovered());
	Inner->SetClipping(EWidgetClipping::Inherit);
	User.Frame();
	EXPECT_TRUE(Large->IsHovered()) << "the resting mouse";
}

TEST(RenderTransforms, MoveWhatIsHit)
{
	const TSharedRef<SProbe> Probe = SNew(SProbe).RenderTransform(FSlateRenderTransform(FVector2D(50.0, 0.0)));
	// clang-format off
	FUserDriver User(
		SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Left)[Probe],
		FVector2D(100.0, 100.0), 2.0f, EDriverFonts::Even);
	// clang-format on
	User.MoveTo(FVector2D(55.0, 5.0));
	EXPECT_TRUE(Probe->IsHovered());
	User.MoveTo(FVector2D(5.0, 5.0));
	EXPECT_FALSE(Probe->IsHovered());
}

TEST(RenderTransforms, TurnAboutTheirPivot)
{
	const TSharedRef<SProbe> Probe = SNew(SProbe).RenderTransform(FSlateRenderTransform(2.0f)).RenderTransformPivot(FVector2D(0.5, 0.5));
	FUserDriver User(Probe, FVector2D(100.0, 100.0), 1.0f, EDriverFonts::Even);
	EXPECT_EQ(Probe->GetCachedGeometry().LocalToAbsolute(FVector2D(0.0, 100.0)), FVector2D(-50.0, 150.0));
	EXPECT_EQ(Probe->GetCachedGeometry().AbsoluteToLocal(FVector2D(-50.0, 150.0)), FVector2D(0.0, 100.0));
}
