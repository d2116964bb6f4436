// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Brushes/SlateColorBrush.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Support/UserDriver.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SHyperlink.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

#include <QImage>
#include <gtest/gtest.h>

namespace
{
FButtonStyle MakeStyle()
{
	FButtonStyle Style;
	Style.SetNormal(FSlateColorBrush(FLinearColor::Red))
		.SetHovered(FSlateColorBrush(FLinearColor(0.0f, 1.0f, 0.0f)))
		.SetPressed(FSlateColorBrush(FLinearColor(0.0f, 0.0f, 1.0f)))
		.SetDisabled(FSlateColorBrush(FLinearColor::White))
		.SetNormalPadding(FMargin(4.0f, 2.0f, 4.0f, 2.0f))
		.SetPressedPadding(FMargin(4.0f, 3.0f, 4.0f, 1.0f));
	return Style;
}

/** A button of 100 by 40 in the corner of a window of 200 by 100. */
class Button : public testing::Test
{
protected:
	FReply Count()
	{
		++NumClicks;
		return FReply::Handled();
	}

	QColor ColorOfButton() { return User.Picture().pixelColor(1, 1); }

	const FButtonStyle Style = MakeStyle();
	int32 NumClicks = 0;
	const TSharedRef<STextBlock> Label = SNew(STextBlock).Text(FText::FromString(TEXT("Press me")));
	// clang-format off
	const TSharedRef<SButton> Widget =
		SNew(SButton)
		.ButtonStyle(&Style)
		.ContentPadding(FMargin(14.0f, 10.0f, 14.0f, 10.0f))
		.OnClicked_Lambda([this] { return Count(); })
		[
			Label
		];
	FUserDriver User{
		SNew(SOverlay) + SOverlay::Slot().HAlign(HAlign_Left).VAlign(VAlign_Top)[Widget],
		FVector2D(200.0, 100.0), 1.0f, EDriverFonts::Even};
	// clang-format on
	const FVector2D Inside{50.0, 20.0};
	const FVector2D Outside{150.0, 80.0};
};
} // namespace

TEST_F(Button, ShowsWhatTheMouseDoesAndMovesItsContentWhilePressed)
{
	EXPECT_EQ(Widget->GetCachedGeometry().GetLocalSize(), FVector2D(100.0, 40.0));
	EXPECT_EQ(Label->GetCachedGeometry().GetAbsolutePosition(), FVector2D(18.0, 12.0));
	EXPECT_EQ(ColorOfButton(), QColor(255, 0, 0));
	User.MoveTo(Inside);
	EXPECT_EQ(ColorOfButton(), QColor(0, 255, 0));
	User.MouseDown(Inside);
	EXPECT_EQ(ColorOfButton(), QColor(0, 0, 255));
	EXPECT_EQ(Label->GetCachedGeometry().GetAbsolutePosition(), FVector2D(18.0, 13.0));
	User.MouseUp(Inside);
	EXPECT_EQ(ColorOfButton(), QColor(0, 255, 0));
	User.MoveTo(Outside);
	EXPECT_EQ(ColorOfButton(), QColor(255, 0, 0));
}

TEST_F(Button, IsClickedByPressingAndLettingGoOverIt)
{
	User.MouseDown(Inside);
	EXPECT_TRUE(Widget->IsPressed());
	User.MoveTo(Outside);
	User.MoveTo(Inside);
	User.MouseUp(Inside);
	EXPECT_EQ(NumClicks, 1) << "back again";
	User.DoubleClickAt(Inside);
	EXPECT_EQ(NumClicks, 3) << "two quick clicks are two";
	User.MouseDown(Inside);
	User.MouseUp(Outside);
	EXPECT_FALSE(Widget->IsPressed());
	User.MouseDown(Outside);
	User.MouseUp(Inside);
	User.MouseDown(Inside, EKeys::RightMouseButton);
	User.MouseUp(Inside, EKeys::RightMouseButton);
	EXPECT_EQ(NumClicks, 3) << "pressed or let go elsewhere, or by another button";
}

TEST_F(Button, TakesEnterAndSpaceWhileItHasTheFocus)
{
	User.Press(TEXT("Enter"));
	EXPECT_EQ(NumClicks, 0);
	User.Press(TEXT("Tab"));
	EXPECT_TRUE(Widget->HasKeyboardFocus());
	EXPECT_EQ(ColorOfButton(), QColor(0, 255, 0)) << "whoever came by the keyboard sees where it is";
	User.Press(TEXT("Enter"));
	User.Press(TEXT("SpaceBar"));
	EXPECT_EQ(NumClicks, 2);
	User.Press(TEXT("A"));
	User.Press(TEXT("Ctrl+Enter"));
	EXPECT_EQ(NumClicks, 2);
	User.KeyDown(TEXT("SpaceBar"));
	EXPECT_TRUE(Widget->IsPressed());
	User.ClearFocus();
	EXPECT_FALSE(Widget->IsPressed());
	EXPECT_EQ(ColorOfButton(), QColor(255, 0, 0));
	User.KeyUp(TEXT("SpaceBar"));
	EXPECT_EQ(NumClicks, 2);
}

TEST_F(Button, DisabledItDoesNothingAndLooksSo)
{
	Widget->SetEnabled(false);
	User.Frame();
	User.ClickAt(Inside);
	User.Press(TEXT("Tab"));
	User.Press(TEXT("Enter"));
	EXPECT_EQ(NumClicks, 0);
	EXPECT_FALSE(Widget->IsHovered());
	EXPECT_NE(ColorOfButton(), QColor(255, 0, 0));
}

TEST_F(Button, AHandlerMayReplaceTheHandlerAndTheContentAndTakeTheButtonAway)
{
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox);
	Box->AddSlot().AutoHeight()[Widget];
	FUserDriver Other(Box, FVector2D(200.0, 100.0));
	const auto TakeAway = [Box]
	{
		Box->ClearChildren();
		return FReply::Handled();
	};
	const auto Replace = [this, TakeAway]
	{
		Widget->SetContent(SNew(STextBlock).Text(FText::FromString(TEXT("Done"))));
		Widget->SetOnClicked(FOnClicked::CreateLambda(TakeAway));
		return FReply::Handled();
	};
	Widget->SetOnClicked(FOnClicked::CreateLambda(Replace));
	Other.Click(TEXT("Press me"));
	EXPECT_FALSE(Other.Sees(TEXT("Press me")));
	Other.Click(TEXT("Done"));
	EXPECT_FALSE(Other.Sees(TEXT("Done")));
	EXPECT_FALSE(Widget->HasMouseCapture());
}

TEST(ButtonContent, ForegroundColorsFollowTheState)
{
	FButtonStyle Style = MakeStyle();
	Style.SetNormal(FSlateColorBrush(FLinearColor::Black))
		.SetHovered(FSlateColorBrush(FLinearColor::Black))
		.SetNormalForeground(FLinearColor::Red)
		.SetHoveredForeground(FLinearColor(0.0f, 1.0f, 0.0f));
	const FSlateColorBrush White(FLinearColor::White);
	// clang-format off
	FUserDriver User(
		SNew(SButton).ButtonStyle(&Style)[SNew(SImage).Image(&White).ColorAndOpacity(FSlateColor::UseForeground())],
		FVector2D(100.0, 40.0), 1.0f, EDriverFonts::Even);
	// clang-format on
	EXPECT_EQ(User.Picture().pixelColor(50, 20), QColor(255, 0, 0));
	User.MoveTo(FVector2D(50.0, 20.0));
	EXPECT_EQ(User.Picture().pixelColor(50, 20), QColor(0, 255, 0));
}

TEST(ButtonContent, AnImageAloneNamesTheButton)
{
	FSlateStyleSet Set("ButtonTest");
	Set.Set("ButtonTest.Icon.Send", new FSlateColorBrush(FLinearColor::White));
	FSlateStyleRegistry::RegisterSlateStyle(Set);
	const FSlateColorBrush Nameless(FLinearColor::White);
	const auto NameOf = [](const TSharedRef<SWidget>& Content)
	{
		return TSharedRef<SButton>(SNew(SButton)[Content])->GetAccessibleText().ToString();
	};
	const TSharedRef<SImage> Image = SNew(SImage).Image(Set.GetBrush("ButtonTest.Icon.Send"));
	EXPECT_EQ(Image->GetAccessibleText().ToString(), TEXT("")) << "the button alone carries it";
	EXPECT_EQ(NameOf(SNew(SOverlay) + SOverlay::Slot()[Image]), TEXT("Send"));
	EXPECT_EQ(NameOf(SNew(SImage).Image(&Nameless)), TEXT(""));
	EXPECT_EQ(NameOf(SNew(STextBlock).Text(FText::FromString(TEXT("Send")))), TEXT("")) << "its text says it";
	const TSharedRef<SButton> Named = SNew(SButton).AccessibleText(FText::FromString(TEXT("Give up")))[Image];
	EXPECT_EQ(Named->GetAccessibleText().ToString(), TEXT("Give up"));
	FSlateStyleRegistry::UnRegisterSlateStyle(Set);
}

TEST(Hyperlink, LeadsSomewhereAndShowsIt)
{
	FHyperlinkStyle Style;
	Style.SetUnderlineStyle(MakeStyle()).SetPadding(FMargin(0.0f, 0.0f, 0.0f, 1.0f));
	int32 NumOpened = 0;
	// clang-format off
	const TSharedRef<SHyperlink> Link =
		SNew(SHyperlink)
		.Style(&Style)
		.Text(FText::FromString(TEXT("Go")))
		.OnNavigate_Lambda([&NumOpened] { ++NumOpened; });
	FUserDriver User(
		SNew(SOverlay) + SOverlay::Slot().HAlign(HAlign_Left).VAlign(VAlign_Top)[Link],
		FVector2D(100.0, 40.0), 1.0f, EDriverFonts::Even);
	// clang-format on
	EXPECT_EQ(Link->GetCachedGeometry().GetLocalSize(), FVector2D(24.0, 21.0));
	User.Click(TEXT("Go"));
	EXPECT_EQ(NumOpened, 1);
	EXPECT_EQ(User.GetDesktop().Cursor, EMouseCursor::Hand);
	EXPECT_EQ(User.Picture().pixelColor(1, 1), QColor(0, 255, 0));
	User.MoveTo(FVector2D(90.0, 30.0));
	EXPECT_EQ(User.GetDesktop().Cursor, EMouseCursor::Default);
	User.Press(TEXT("Enter"));
	EXPECT_EQ(NumOpened, 2) << "the click gave it the focus";
}
