// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/Probe.h"
#include "Support/UserDriver.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/SWindow.h"

#include <gtest/gtest.h>

namespace
{
/** Two probes in a column, and one in the corner over them. */
class DisplayList : public testing::Test
{
protected:
	DisplayList() { User.GetWindow()->TakeDamage(); }

	TArray<FSlateRect> TakeDamage()
	{
		User.Frame();
		return User.GetWindow()->TakeDamage();
	}

	TSharedRef<SProbe> First = SNew(SProbe);
	TSharedRef<SProbe> Second = SNew(SProbe);
	TSharedRef<SProbe> Corner = SNew(SProbe);
	// clang-format off
	TSharedRef<SVerticalBox> Column =
		SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Left)[First]
		+ SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Left)[Second];
	TSharedRef<SWidget> Root =
		SNew(SOverlay)
		+ SOverlay::Slot()[Column]
		+ SOverlay::Slot().HAlign(HAlign_Right).VAlign(VAlign_Bottom)[Corner];
	// clang-format on
	FUserDriver User{Root, FVector2D(100.0, 100.0), 2.0f, EDriverFonts::Even};

	const FSlateRect FirstRect{0.0f, 0.0f, 40.0f, 20.0f};
	const FSlateRect SecondRect{0.0f, 20.0f, 40.0f, 40.0f};
	const FSlateRect CornerRect{160.0f, 180.0f, 200.0f, 200.0f};
};
} // namespace

TEST_F(DisplayList, WhatMovesIsDamagedWhereItWasAndWhereItIs)
{
	First->Invalidate(EInvalidateWidgetReason::Paint);
	Root->Invalidate(EInvalidateWidgetReason::Layout);
	EXPECT_EQ(TakeDamage(), TArray<FSlateRect>()) << "nothing changed";
	Second->SetRenderTransform(FSlateRenderTransform(FVector2D(0.0, 3.0)));
	EXPECT_EQ(TakeDamage(), TArray<FSlateRect>({SecondRect, FSlateRect(0.0f, 26.0f, 40.0f, 46.0f)}));
}

TEST_F(DisplayList, WhatComesAndGoesIsDamagedAlone)
{
	First->SetVisibility(EVisibility::Hidden);
	EXPECT_EQ(TakeDamage(), TArray<FSlateRect>({FirstRect}));
	First->SetVisibility(EVisibility::Visible);
	EXPECT_EQ(TakeDamage(), TArray<FSlateRect>({FirstRect}));
	const TSharedRef<SProbe> Third = SNew(SProbe);
	Column->AddSlot().AutoHeight().HAlign(HAlign_Left)[Third];
	EXPECT_EQ(TakeDamage(), TArray<FSlateRect>({FSlateRect(0.0f, 40.0f, 40.0f, 60.0f)}));
	Column->RemoveSlot(Third);
	User.Frame();
	Corner->SetVisibility(EVisibility::Hidden);
	EXPECT_EQ(TakeDamage(), TArray<FSlateRect>({FSlateRect(0.0f, 40.0f, 40.0f, 60.0f), CornerRect})) << "of two frames";
}
