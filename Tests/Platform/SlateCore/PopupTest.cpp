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
/** An anchor of 20 by 10 somewhere in a window of 100 by 100, over a probe that fills it. */
class Popup : public testing::Test
{
protected:
	void Open(const TSharedRef<SWidget>& Content)
	{
		User.GetWindow()->OpenPopup(Anchor, Content, FSimpleDelegate::CreateLambda([this] { ++NumClosed; }));
		User.Frame();
	}

	void MoveAnchor(float Left, float Top)
	{
		Column->ClearChildren();
		Column->AddSlot().AutoHeight().HAlign(HAlign_Left).Padding(Left, Top, 0.0f, 0.0f)[Anchor];
		User.Frame();
	}

	TSharedRef<SProbe> Ground = SNew(SProbe);
	TSharedRef<SProbe> Anchor = SNew(SProbe).Focusable(true);
	TSharedRef<SProbe> Inner = SNew(SProbe).Size(FVector2D(30.0, 40.0)).Focusable(true);
	TSharedRef<SVerticalBox> Column = SNew(SVerticalBox);
	FUserDriver User{
		SNew(SOverlay) + SOverlay::Slot()[Ground] + SOverlay::Slot()[Column], FVector2D(100.0, 100.0), 2.0f, EDriverFonts::Even};
	int32 NumClosed = 0;
};
} // namespace

TEST_F(Popup, StandsAtItsAnchorWithinTheWindow)
{
	struct FCase
	{
		FVector2D Anchor;
		FVector2D Wish;
		const TCHAR* Expected;
	};
	const FCase Cases[] = {
		{{5.0, 5.0}, {30.0, 40.0}, TEXT("SProbe 5,17 30x40\n")},
		{{5.0, 5.0}, {8.0, 40.0}, TEXT("SProbe 5,17 20x40\n")},
		{{5.0, 70.0}, {30.0, 40.0}, TEXT("SProbe 5,28 30x40\n")},
		{{5.0, 30.0}, {30.0, 70.0}, TEXT("SProbe 5,42 30x56\n")},
		{{5.0, 60.0}, {30.0, 70.0}, TEXT("SProbe 5,2 30x56\n")},
		{{75.0, 5.0}, {30.0, 40.0}, TEXT("SProbe 65,17 30x40\n")},
		{{40.0, 5.0}, {300.0, 40.0}, TEXT("SProbe 0,17 100x40\n")},
	};
	for (const FCase& Case : Cases)
	{
		MoveAnchor(Case.Anchor.X, Case.Anchor.Y);
		Open(SNew(SProbe).Size(Case.Wish));
		EXPECT_TRUE(User.Tree().EndsWith(FString(TEXT("\n")) + Case.Expected)) << User.Tree();
	}
}

TEST_F(Popup, FollowsItsAnchorAndIsRepaintedAlone)
{
	MoveAnchor(0.0f, 0.0f);
	User.GetWindow()->TakeDamage();
	Open(Inner);
	EXPECT_EQ(User.GetWindow()->TakeDamage(), TArray<FSlateRect>({FSlateRect(0.0f, 24.0f, 60.0f, 104.0f)}));
	Anchor->SetSize(FVector2D(20.0, 20.0));
	User.Frame();
	EXPECT_EQ(Inner->GetCachedGeometry().GetAbsolutePosition(), FVector2D(0.0, 44.0));
	User.GetWindow()->TakeDamage();
	User.GetWindow()->ClosePopup();
	User.Frame();
	EXPECT_EQ(User.GetWindow()->TakeDamage(), TArray<FSlateRect>({FSlateRect(0.0f, 44.0f, 60.0f, 124.0f)}));
}

TEST_F(Popup, KeepsTheMouseAndTheFocusFromWhatIsBelowAndGoesForAnother)
{
	MoveAnchor(0.0f, 0.0f);
	Open(SNew(SProbe));
	Open(Inner);
	EXPECT_EQ(NumClosed, 1);
	User.ClickAt(FVector2D(10.0, 20.0));
	EXPECT_TRUE(Inner->HasKeyboardFocus());
	User.WheelAt(FVector2D(80.0, 80.0), 1.0f);
	User.MoveTo(FVector2D(80.0, 80.0));
	EXPECT_EQ(Ground->TakeEvents(), FString());
	User.ClickAt(FVector2D(80.0, 80.0));
	EXPECT_EQ(NumClosed, 2);
	EXPECT_EQ(Ground->TakeEvents(), TEXT("enter, up LeftMouseButton")) << "the press did nothing but close it";
	Open(Inner);
	FSlateApplication::Get().SetKeyboardFocus(Inner);
	FSlateApplication::Get().SetKeyboardFocus(Anchor);
	EXPECT_EQ(NumClosed, 3) << "it was left";
	EXPECT_FALSE(Inner->GetParentWidget().IsValid());
}
