// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateNoResource.h"
#include "Support/DrawnElements.h"
#include "Support/Probe.h"
#include "Support/UserDriver.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/SWindow.h"

#include <gtest/gtest.h>

static void PrintTo(const FSlateRect& Rect, std::ostream* Stream)
{
	*Stream << Rect.Left << "," << Rect.Top << " - " << Rect.Right << "," << Rect.Bottom;
}

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

	TArray<FSlateRect> Drawn() const
	{
		TArray<FSlateRect> Rects;
		ForEachDrawn(*User.GetWindow()->GetDisplayList(),
			[&Rects](const FSlateDrawElement& Element, const FSlateRect& Clip) { Rects.Add(Element.GetBounds().IntersectionWith(Clip)); });
		return Rects;
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

TEST_F(DisplayList, AClippingWidgetCutsWhatIsDrawnAndWhatIsDamaged)
{
	Column->SetClipping(EWidgetClipping::ClipToBounds);
	Column->SetRenderTransform(FSlateRenderTransform(FVector2D(-10.0, 0.0)));
	User.Frame();
	User.GetWindow()->TakeDamage();
	First->SetSize(FVector2D(400.0, 10.0));
	EXPECT_EQ(TakeDamage()[1], FSlateRect(-20.0f, 0.0f, 180.0f, 20.0f));
	User.Resize(FVector2D(50.0, 50.0));
	EXPECT_EQ(Drawn()[0], FSlateRect(0.0f, 0.0f, 80.0f, 20.0f));
}

TEST_F(DisplayList, AnImageTakesTheRoomOfItsBrushAndDrawsNothingForNothing)
{
	const FSlateColorBrush White(FLinearColor::White);
	const FSlateNoResource Nothing(FVector2D(12.0, 12.0));
	const TSharedRef<SImage> Image = SNew(SImage).Image(&White);
	Column->AddSlot().AutoHeight()[Image];
	User.Frame();
	EXPECT_EQ(Drawn().Num(), 4);
	Image->SetImage(&Nothing);
	User.Frame();
	EXPECT_EQ(Image->GetDesiredSize(), FVector2D(12.0, 12.0));
	EXPECT_EQ(Drawn().Num(), 3);
}
