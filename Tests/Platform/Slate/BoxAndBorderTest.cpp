// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Brushes/SlateColorBrush.h"
#include "Support/UserDriver.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

#include <QImage>
#include <gtest/gtest.h>

namespace
{
/** The room of a box in a corner, where it gets what it wishes for; its content wishes for 40 by 16. */
FVector2D WishOf(const SBox::FArguments& Arguments)
{
	const TSharedRef<SBox> Box = MakeSlateDecl<SBox>(TEXT("SBox")) <<= Arguments;
	FUserDriver User(
		SNew(SOverlay) + SOverlay::Slot().HAlign(HAlign_Left).VAlign(VAlign_Top)[Box], FVector2D(1000.0, 1000.0), 1.0f, EDriverFonts::Even);
	return Box->GetCachedGeometry().GetLocalSize();
}

SBox::FArguments Box()
{
	return SBox::FArguments()[SNew(STextBlock).Text(FText::FromString(TEXT("Hello")))];
}
} // namespace

TEST(Box, LimitsAndOverridesWhatItsContentWishesFor)
{
	EXPECT_EQ(WishOf(Box()), FVector2D(40.0, 16.0));
	EXPECT_EQ(WishOf(Box().Padding(FMargin(1.0f, 2.0f, 3.0f, 4.0f))), FVector2D(44.0, 22.0));
	EXPECT_EQ(WishOf(Box().WidthOverride(25.0f).HeightOverride(52.5f)), FVector2D(25.0, 52.5));
	EXPECT_EQ(WishOf(Box().MinDesiredWidth(700.0f).MaxDesiredWidth(700.0f)), FVector2D(700.0, 16.0));
	EXPECT_EQ(WishOf(Box().MinDesiredHeight(40.0f).MaxDesiredHeight(120.0f)), FVector2D(40.0, 40.0));
	EXPECT_EQ(WishOf(Box().MaxDesiredWidth(30.0f).MaxDesiredHeight(10.0f)), FVector2D(30.0, 10.0));
	EXPECT_EQ(WishOf(Box().MinDesiredWidth(30.0f).MaxDesiredWidth(FOptionalSize::Unspecified)), FVector2D(40.0, 16.0));
	EXPECT_EQ(WishOf(Box().MinDesiredWidth(90.0f).MaxDesiredWidth(60.0f)), FVector2D(90.0, 16.0));
	EXPECT_EQ(WishOf(Box().Visibility(EVisibility::Collapsed)), FVector2D(0.0, 0.0));
	EXPECT_EQ(WishOf(SBox::FArguments()), FVector2D(0.0, 0.0)) << "empty";

	const TSharedRef<SBox> Narrow = SNew(SBox).MaxDesiredWidth(60.0f);
	FUserDriver User(Narrow, FVector2D(500.0, 100.0));
	EXPECT_EQ(Narrow->GetCachedGeometry().GetLocalSize().X, 500.0) << "a limit is of the wish and not of the room";
}

TEST(Border, DrawsItsBrushBehindItsContent)
{
	const FSlateColorBrush Red(FLinearColor::Red);
	const FSlateColorBrush Green(FLinearColor(0.0f, 1.0f, 0.0f));
	const FSlateColorBrush Blue(FLinearColor(0.0f, 0.0f, 1.0f));
	const TSharedRef<SBorder> Inner = SNew(SBorder).BorderImage(&Green);
	const TSharedRef<SBorder> Outer = SNew(SBorder).BorderImage(&Red).Padding(FMargin(10.0f, 5.0f, 10.0f, 5.0f))[Inner];
	FUserDriver User(Outer, FVector2D(100.0, 50.0), 2.0f, EDriverFonts::Even);
	QImage Picture = User.Picture();
	for (const QPoint Place : {QPoint(19, 50), QPoint(180, 50), QPoint(100, 9)})
	{
		EXPECT_EQ(Picture.pixelColor(Place), QColor(255, 0, 0));
	}
	for (const QPoint Place : {QPoint(20, 50), QPoint(179, 50), QPoint(100, 10)})
	{
		EXPECT_EQ(Picture.pixelColor(Place), QColor(0, 255, 0));
	}

	Outer->SetBorderImage(&Blue);
	Outer->SetColorAndOpacity(FLinearColor(1.0f, 1.0f, 1.0f, 0.0f));
	User.Frame();
	Picture = User.Picture();
	EXPECT_EQ(Picture.pixelColor(19, 50), QColor(0, 0, 255));
	EXPECT_EQ(Picture.pixelColor(100, 50), QColor(0, 0, 255)) << "the color tints the content alone";
}
