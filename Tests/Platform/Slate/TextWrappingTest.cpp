// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TextDriver.h"

#include "Widgets/SBoxPanel.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Text/STextBlock.h"

struct FWrapCase
{
	const TCHAR* Text;
	/** In letters. */
	int32 Width;
	const TCHAR* Rows;
};

class FTextWrapping : public FTextTest, public testing::WithParamInterface<FWrapCase>
{
};

TEST_P(FTextWrapping, BreaksLines)
{
	ShowText(Arguments().Text(FText::FromString(GetParam().Text)).IsReadOnly(true).WrapTextAt(GetParam().Width * Letter));
	EXPECT_EQ(Screen(), FString(GetParam().Rows));
}

INSTANTIATE_TEST_SUITE_P(Words, FTextWrapping,
	testing::Values(FWrapCase{TEXT("one two"), 7, TEXT("one two")}, FWrapCase{TEXT("one two"), 6, TEXT("one \ntwo")},
		FWrapCase{TEXT("one two"), 3, TEXT("one \ntwo")}, FWrapCase{TEXT("one   two"), 3, TEXT("one   \ntwo")},
		FWrapCase{TEXT("  one two"), 5, TEXT("  one \ntwo")}, FWrapCase{TEXT("a-b"), 2, TEXT("a-\nb")},
		FWrapCase{TEXT("one,two"), 5, TEXT("one,t\nwo")}, FWrapCase{TEXT("one two three"), 8, TEXT("one two \nthree")},
		FWrapCase{TEXT("one\ntwo"), 7, TEXT("one\ntwo")}, FWrapCase{TEXT("one\r\ntwo"), 7, TEXT("one\ntwo")},
		FWrapCase{TEXT("a\n\nb"), 7, TEXT("a\n\nb")}, FWrapCase{TEXT("a\u00A0b c"), 3, TEXT("a\u00A0b \nc")},
		FWrapCase{TEXT("\u4E2D\u6587\u5B57"), 2, TEXT("\u4E2D\u6587\n\u5B57")},
		FWrapCase{TEXT("\u4E2D\u6587\u3002"), 2, TEXT("\u4E2D\n\u6587\u3002")}));

INSTANTIATE_TEST_SUITE_P(OverlongWords, FTextWrapping,
	testing::Values(FWrapCase{TEXT("abcdef"), 4, TEXT("abcd\nef")}, FWrapCase{TEXT("abcdef gh"), 4, TEXT("abcd\nef \ngh")},
		FWrapCase{TEXT("abcdef gh"), 5, TEXT("abcde\nf gh")}, FWrapCase{TEXT("a bcdefg"), 4, TEXT("a \nbcde\nfg")},
		FWrapCase{TEXT("abc"), 1, TEXT("a\nb\nc")},
		// A family of four is one character, and so is an e with its accent.
		FWrapCase{TEXT("xe\u0301y"), 2, TEXT("xe\u0301\ny")},
		FWrapCase{TEXT("\U0001F468\u200D\U0001F469\u200D\U0001F467ab"), 2, TEXT("\U0001F468\u200D\U0001F469\u200D\U0001F467\nab")}));

class FTextLayoutRules : public FTextTest
{
};

TEST_F(FTextLayoutRules, AtEveryWidthNothingIsLostAndNothingIsTooWide)
{
	const FString Sample(
		TEXT("The quick (brown) fox's  jump/over \u05E9\u05DC\u05D5\u05DD \u4E2D\u6587 e\u0301\u0301 https://a.bc/def?g=h&i end"));
	for (int32 Width = 1; Width < 60; ++Width)
	{
		ShowText(Arguments().Text(FText::FromString(Sample)).IsReadOnly(true).WrapTextAt(Width * Letter), 1000.0f, 4000.0f);
		const FString Shown = Screen();
		int32 Letters = 0;
		for (const TCHAR Character : Shown)
		{
			Letters += Character == TEXT('\n') ? 0 : 1;
		}
		EXPECT_EQ(Letters, Sample.Len()) << "at width " << Width;
		EXPECT_LE(Text->GetDesiredSize().X, FMath::Max(Width, 1) * Letter) << "at width " << Width;
	}
}

TEST_F(FTextLayoutRules, AWordOfManyUnitsBreaksLikeAnyOther)
{
	FString Long;
	for (int32 Index = 0; Index < 1000; ++Index)
	{
		Long.AppendChar(static_cast<TCHAR>(TEXT('a') + Index % 26));
	}
	ShowText(Arguments().Text(FText::FromString(Long)).IsReadOnly(true).WrapTextAt(70 * Letter), 1000.0f, 400.0f);
	const FString Shown = Screen();
	EXPECT_EQ(Shown.Replace(TEXT("\n"), TEXT("")), Long);
	EXPECT_EQ(Shown.Find(TEXT("\n")), 70);
	EXPECT_EQ(Text->GetDesiredSize(), FVector2D(700.0, 15 * Row));
}

TEST_F(FTextLayoutRules, ATabIsAsWideAsFourBlanks)
{
	ShowText(Arguments().Text(FText::FromString(TEXT("a\tb"))).IsReadOnly(true));
	EXPECT_EQ(ReadScreen().GetRowRight(0), 6 * Letter);
}

TEST_F(FTextLayoutRules, AnEmptyTextIsOneLineHigh)
{
	ShowText(Arguments().IsReadOnly(true).Margin(FMargin(4.0f)));
	EXPECT_EQ(Text->GetDesiredSize(), FVector2D(8.0, Row + 8.0));
}

TEST_F(FTextLayoutRules, MarginsAreKeptFreeAtAnyScale)
{
	ShowText(Arguments().Text(INVTEXT("one two")).IsReadOnly(true).AutoWrapText(true).Margin(FMargin(4.0f)), 48.0f, 400.0f, 2.0f);
	EXPECT_EQ(Text->GetDesiredSize(), FVector2D(78.0, 2 * Row + 8.0));
	EXPECT_EQ(ReadScreen().GetRowLeft(1), 8.0f);
	EXPECT_EQ(ReadScreen().GetRowRight(1), 68.0f);
}

TEST_F(FTextLayoutRules, JustificationFollowsTheViewAndTheParagraph)
{
	const auto RowLeft = [this](const TCHAR* Shown, ETextJustify::Type Justification)
	{
		ShowText(Arguments().Text(FText::FromString(Shown)).IsReadOnly(true).AutoWrapText(true).Justification(Justification), 100.0f);
		return ReadScreen().GetRowLeft(0);
	};
	EXPECT_EQ(RowLeft(TEXT("four"), ETextJustify::Left), 0.0f);
	EXPECT_EQ(RowLeft(TEXT("four"), ETextJustify::Center), 30.0f);
	EXPECT_EQ(RowLeft(TEXT("four"), ETextJustify::Right), 60.0f);
	EXPECT_EQ(RowLeft(TEXT("\u05E9\u05DC\u05D5\u05DD"), ETextJustify::Left), 60.0f);
	EXPECT_EQ(RowLeft(TEXT("\u05E9\u05DC\u05D5\u05DD"), ETextJustify::Right), 0.0f);
}

struct FBidiCase
{
	const TCHAR* Text;
	int32 Width;
	const TCHAR* Rows;
};

class FTextBidi : public FTextTest, public testing::WithParamInterface<FBidiCase>
{
};

TEST_P(FTextBidi, OrdersEachRowForTheEye)
{
	ShowText(Arguments().Text(FText::FromString(GetParam().Text)).IsReadOnly(true).WrapTextAt(GetParam().Width * Letter));
	EXPECT_EQ(Screen(), FString(GetParam().Rows));
}

// Hebrew letters: alef \u05D0, bet \u05D1, gimel \u05D2, dalet \u05D3.
INSTANTIATE_TEST_SUITE_P(Rows, FTextBidi,
	testing::Values(FBidiCase{TEXT("ab \u05D0\u05D1 cd"), 20, TEXT("ab \u05D1\u05D0 cd")},
		FBidiCase{TEXT("\u05D0\u05D1 ab \u05D2\u05D3"), 20, TEXT("\u05D3\u05D2 ab \u05D1\u05D0")},
		FBidiCase{TEXT("ab \u05D0\u05D1 \u05D2\u05D3 cd"), 20, TEXT("ab \u05D3\u05D2 \u05D1\u05D0 cd")},
		// Wrapped, each row is ordered by itself.
		FBidiCase{TEXT("ab \u05D0\u05D1 \u05D2\u05D3 cd"), 5, TEXT("ab \u05D1\u05D0 \n\u05D3\u05D2 cd")},
		// Blanks at the end of a row hang over its end, which is left.
		FBidiCase{TEXT("\u05D0\u05D1 ab cd"), 6, TEXT(" ab \u05D1\u05D0\ncd")},
		FBidiCase{TEXT("\u05D0\u05D1 12"), 20, TEXT("12 \u05D1\u05D0")}));

TEST_F(FTextLayoutRules, AHangingBlankTakesNoRoomFromARightToLeftRow)
{
	ShowText(Arguments().Text(FText::FromString(TEXT("\u05D0\u05D1 ab cd"))).IsReadOnly(true).AutoWrapText(true), 60.0f);
	EXPECT_EQ(ReadScreen().GetRowRight(0), 60.0f);
	EXPECT_EQ(ReadScreen().GetRowRight(1), 60.0f);
}

class FLabels : public FTextTest
{
};

TEST_F(FLabels, WrapsWithinTheFrameInWhichItLearnsItsWidth)
{
	const TSharedRef<STextBlock> Label = SNew(STextBlock).TextStyle(&Style).Text(INVTEXT("one two three")).AutoWrapText(true);
	const TSharedRef<STextBlock> Below = SNew(STextBlock).TextStyle(&Style).Text(INVTEXT("below"));
	Show(SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[Label] + SVerticalBox::Slot().AutoHeight()[Below], 79.0f);
	EXPECT_EQ(FTextScreen(*GetWindow()->GetDisplayList(), FLinearColor::Red, Row).ToString(), FString(TEXT("one two \nthree\nbelow")));
	EXPECT_EQ(Label->GetDesiredSize(), FVector2D(130.0, 2 * Row));

	Resize(FVector2D(130.0, 400.0));
	EXPECT_EQ(FTextScreen(*GetWindow()->GetDisplayList(), FLinearColor::Red, Row).ToString(), FString(TEXT("one two three\nbelow")));
}

TEST_F(FLabels, CountsTheBlanksAtItsEndsUnlessItIsWrapped)
{
	const auto WidthOf = [this](const TCHAR* Shown, float WrapAt)
	{
		const TSharedRef<STextBlock> Label = SNew(STextBlock).TextStyle(&Style).Text(FText::FromString(Shown)).WrapTextAt(WrapAt);
		Show(Label, 400.0f);
		return Label->GetDesiredSize().X;
	};
	EXPECT_EQ(WidthOf(TEXT(" and  "), 0.0f), 6 * Letter);
	EXPECT_EQ(WidthOf(TEXT("\u05D0\u05D1 "), 0.0f), 3 * Letter);
	EXPECT_EQ(WidthOf(TEXT(" and  "), 200.0f), 4 * Letter);
}

TEST_F(FLabels, WrapsAtTheLesserOfTwoWidths)
{
	const auto RowsAt = [this](float Width)
	{
		Show(SNew(STextBlock).TextStyle(&Style).Text(INVTEXT("one two three")).AutoWrapText(true).WrapTextAt(80.0f), Width);
		return Screen();
	};
	EXPECT_EQ(RowsAt(1000.0f), FString(TEXT("one two \nthree")));
	EXPECT_EQ(RowsAt(60.0f), FString(TEXT("one \ntwo \nthree")));
}

TEST_F(FLabels, FollowsABoundText)
{
	FString Shown(TEXT("first"));
	const TSharedRef<STextBlock> Label = SNew(STextBlock).TextStyle(&Style).Text_Lambda([&Shown] { return FText::FromString(Shown); });
	Show(Label);
	EXPECT_EQ(Screen(), FString(TEXT("first")));
	Shown = TEXT("and second");
	AdvanceTime(0.0f);
	EXPECT_EQ(Screen(), FString(TEXT("and second")));
	EXPECT_EQ(Label->GetDesiredSize().X, 100.0);
	EXPECT_EQ(Label->GetShownText(), FString(TEXT("and second")));
}

TEST_F(FLabels, AnotherColorIsPaintedWithoutLayout)
{
	const TSharedRef<STextBlock> Label = SNew(STextBlock).TextStyle(&Style).Text(INVTEXT("red")).ColorAndOpacity(FLinearColor::White);
	Show(Label);
	Label->SetColorAndOpacity(FSlateColor(FLinearColor::Red));
	Frame();
	EXPECT_EQ(Application().GetFrameStats().NumDesiredSizes, 0);
	EXPECT_GT(Application().GetFrameStats().NumPainted, 0);
	AdvanceTime(0.0f);
	EXPECT_EQ(Application().GetFrameStats().NumPainted, 0);
}

TEST_F(FLabels, ALongerTextIsNotSqueezedIntoTheRoomOfAShorterOne)
{
	const TSharedRef<STextBlock> Label = SNew(STextBlock).TextStyle(&Style).Text(INVTEXT("one")).AutoWrapText(true).WrapTextAt(100.0f);
	Show(SNew(SBox).HAlign(HAlign_Center)[Label], 400.0f);
	EXPECT_EQ(ReadScreen().GetRowLeft(0), 185.0f);
	Label->SetText(INVTEXT("one two three four"));
	EXPECT_EQ(Screen(), FString(TEXT("one two \nthree four")));
	EXPECT_EQ(ReadScreen().GetRowLeft(0), 150.0f);
	Label->SetText(INVTEXT("one"));
	EXPECT_EQ(ReadScreen().GetRowLeft(0), 185.0f);
}
