// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Brushes/SlateColorBrush.h"
#include "Support/UserDriver.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

#include <QImage>
#include <gtest/gtest.h>

namespace
{
/** A scroll box of 100 by 100 with a column in it, to which tests add rows. The bar is 10 wide. */
class ScrollBox : public testing::Test
{
protected:
	ScrollBox() { BarStyle.SetThickness(10.0f).SetNormalThumbImage(FSlateColorBrush(FLinearColor(0.0f, 0.0f, 1.0f))); }

	TSharedRef<SBox> AddRow(float Height)
	{
		const TSharedRef<SBox> Row = SNew(SBox).HeightOverride(Height);
		Column->AddSlot().AutoHeight()[Row];
		return Row;
	}

	void Fill(float Height)
	{
		AddRow(Height);
		User.Frame();
	}

	double TopOf(const SWidget& Widget) const { return Widget.GetCachedGeometry().GetAbsolutePosition().Y; }
	double WidthOfContent() const { return Column->GetCachedGeometry().GetLocalSize().X; }

	FScrollBarStyle BarStyle;
	TSharedPtr<SVerticalBox> Column;
	TSharedPtr<SScrollBox> Box;
	// clang-format off
	FUserDriver User{
		SAssignNew(Box, SScrollBox).ScrollBarStyle(&BarStyle).AllowOverscroll(EAllowOverscroll::No)
		+ SScrollBox::Slot()[SAssignNew(Column, SVerticalBox)],
		FVector2D(100.0, 100.0), 1.0f, EDriverFonts::Even};
	// clang-format on
	const FVector2D Middle{50.0, 50.0};
};
} // namespace

TEST_F(ScrollBox, ItsBarTakesRoomOnlyWhileThereIsSomethingToScroll)
{
	const TSharedRef<SBox> Row = AddRow(100.0f);
	User.Frame();
	EXPECT_EQ(WidthOfContent(), 100.0);
	EXPECT_NE(User.Picture().pixelColor(99, 1), QColor(0, 0, 255));
	const TSharedRef<SBox> More = AddRow(100.0f);
	User.Frame();
	EXPECT_EQ(WidthOfContent(), 90.0);
	EXPECT_EQ(User.Picture().pixelColor(99, 1), QColor(0, 0, 255));
	EXPECT_NE(User.Picture().pixelColor(99, 60), QColor(0, 0, 255)) << "half of the content is half of the bar";
	Column->RemoveSlot(More);
	User.Frame();
	EXPECT_EQ(WidthOfContent(), 100.0);
}

TEST_F(ScrollBox, ScrollToEndGoesToTheEndThatTheNextLayoutFinds)
{
	Fill(200.0f);
	Box->ScrollToEnd();
	EXPECT_EQ(Box->GetScrollOffset(), 0.0f);
	// A text wraps in the same layout.
	const FString Words = FString::ChrN(40, TEXT('.')).Replace(TEXT("."), TEXT("word "));
	const TSharedRef<STextBlock> Text = SNew(STextBlock).AutoWrapText(true).Text(FText::FromString(Words));
	Column->AddSlot().AutoHeight()[Text];
	User.Frame();
	const float End = Box->GetScrollOffset();
	EXPECT_GT(End, 200.0f);
	EXPECT_EQ(Text->GetCachedGeometry().GetRenderBoundingRect().Bottom, 100.0f);
	Fill(50.0f);
	EXPECT_EQ(Box->GetScrollOffset(), End) << "once";
	Box->ScrollToEnd();
	User.WheelAt(Middle, 1.0f);
	EXPECT_LT(Box->GetScrollOffset(), End) << "the user comes before it";
}

TEST_F(ScrollBox, TheWheelShrinkingContentAndAGrowingViewKeepItWithinItsEnds)
{
	const TSharedRef<SBox> Row = AddRow(400.0f);
	Fill(100.0f);
	Box->ScrollToEnd();
	User.Frame();
	EXPECT_EQ(Box->GetScrollOffset(), 400.0f);
	Column->RemoveSlot(Row);
	User.Frame();
	EXPECT_EQ(Box->GetScrollOffset(), 0.0f);
	Fill(100.0f);
	User.WheelAt(Middle, -1.0f);
	EXPECT_GT(Box->GetScrollOffset(), 0.0f);
	EXPECT_EQ(TopOf(*Column), -Box->GetScrollOffset());
	User.WheelAt(Middle, -100.0f);
	EXPECT_EQ(Box->GetScrollOffset(), 100.0f);
	User.WheelAt(Middle, 100.0f);
	EXPECT_EQ(Box->GetScrollOffset(), 0.0f);
	Box->SetScrollOffset(70.0f);
	User.Resize(FVector2D(100.0, 150.0));
	EXPECT_EQ(Box->GetScrollOffset(), 50.0f);
}

TEST_F(ScrollBox, TheThumbIsDraggedAlsoBeyondTheEdgeAndJumpsWhereTheBarIsPressed)
{
	Fill(200.0f);
	User.MouseDown(FVector2D(95.0, 10.0));
	User.MoveTo(FVector2D(95.0, 20.0));
	EXPECT_EQ(Box->GetScrollOffset(), 20.0f) << "10 of the 50 that the thumb can go";
	User.MoveTo(FVector2D(-500.0, 35.0));
	EXPECT_EQ(Box->GetScrollOffset(), 50.0f);
	User.MoveTo(FVector2D(95.0, 5000.0));
	EXPECT_EQ(Box->GetScrollOffset(), 100.0f);
	User.MouseUp(FVector2D(95.0, 5000.0));
	User.MoveTo(FVector2D(95.0, 20.0));
	EXPECT_EQ(Box->GetScrollOffset(), 100.0f) << "let go";
	User.ClickAt(FVector2D(95.0, 30.0));
	EXPECT_EQ(Box->GetScrollOffset(), 10.0f) << "the thumb's middle";
}

TEST_F(ScrollBox, KeysScrollPagesAndToTheEnds)
{
	Fill(500.0f);
	const auto OffsetAfter = [this](const TCHAR* Key)
	{
		User.Press(Key);
		return Box->GetScrollOffset();
	};
	EXPECT_EQ(OffsetAfter(TEXT("PageDown")), 0.0f) << "not without the focus";
	User.ClickAt(Middle);
	const float Page = OffsetAfter(TEXT("PageDown"));
	EXPECT_GT(Page, 50.0f);
	EXPECT_LT(Page, 100.0f) << "some of the former page stays in view";
	EXPECT_EQ(OffsetAfter(TEXT("End")), 400.0f);
	EXPECT_EQ(OffsetAfter(TEXT("PageUp")), 400.0f - Page);
	EXPECT_EQ(OffsetAfter(TEXT("Home")), 0.0f);
}

TEST_F(ScrollBox, TabBringsWhatItReachesIntoView)
{
	const auto AddButton = [this](const TCHAR* Label)
	{
		const TSharedRef<SButton> Added = SNew(SButton).Text(FText::FromString(Label));
		Column->AddSlot().AutoHeight()[Added];
		return Added;
	};
	const TSharedRef<SWidget> First = AddButton(TEXT("First"));
	Fill(500.0f);
	const TSharedRef<SWidget> Last = AddButton(TEXT("Last"));
	User.Frame();
	User.ClickAt(Middle);
	User.Press(TEXT("Tab"));
	EXPECT_TRUE(First->HasKeyboardFocus());
	EXPECT_EQ(Box->GetScrollOffset(), 0.0f) << "it is in view";
	User.Press(TEXT("Tab"));
	EXPECT_TRUE(Last->HasKeyboardFocus());
	EXPECT_EQ(Box->GetScrollOffset(), Box->GetScrollOffsetOfEnd());
	User.Press(TEXT("Shift+Tab"));
	EXPECT_EQ(TopOf(*First), 0.0);
}

TEST_F(ScrollBox, ClipsItsContentAndAtItsEndTheWheelBelongsToTheBoxAround)
{
	const FSlateColorBrush Red(FLinearColor::Red);
	const TSharedRef<SScrollBox> Inner =
		SNew(SScrollBox) + SScrollBox::Slot()[SNew(SImage).Image(&Red).DesiredSizeOverride(FVector2D(10.0, 70.0))];
	const TSharedRef<SScrollBox> Outer = SNew(SScrollBox) + SScrollBox::Slot()[SNew(SBox).HeightOverride(60.0f)[Inner]] +
										 SScrollBox::Slot()[SNew(SBox).HeightOverride(300.0f)];
	FUserDriver Other(Outer, FVector2D(100.0, 100.0));
	EXPECT_EQ(Other.Picture().pixelColor(10, 59), QColor(255, 0, 0));
	EXPECT_NE(Other.Picture().pixelColor(10, 60), QColor(255, 0, 0));
	Other.WheelAt(FVector2D(10.0, 10.0), -1.0f);
	EXPECT_EQ(Inner->GetScrollOffset(), 10.0f);
	EXPECT_EQ(Outer->GetScrollOffset(), 0.0f);
	Other.WheelAt(FVector2D(10.0, 10.0), -1.0f);
	EXPECT_GT(Outer->GetScrollOffset(), 0.0f);
}
