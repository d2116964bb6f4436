// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TextDriver.h"

#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

class FTextWrapping : public FTextTest
{
};

TEST_F(FTextWrapping, BreaksLinesAndOrdersEachRowForTheEye)
{
	const FWrapCase Cases[] = {{"one two", 7, "one two"}, {"one two", 6, "one \ntwo"}, {"one   two", 3, "one   \ntwo"},
		{"  one two", 5, "  one \ntwo"}, {"a-b", 2, "a-\nb"}, {"one,two", 5, "one,t\nwo"}, {"one two three", 8, "one two \nthree"},
		{"one\r\ntwo", 7, "one\ntwo"}, {"a\n\nb", 7, "a\n\nb"}, {"a\u00A0b c", 3, "a\u00A0b \nc"},
		{"\u4E2D\u6587\u5B57", 2, "\u4E2D\u6587\n\u5B57"}, {"\u4E2D\u6587\u3002", 2, "\u4E2D\n\u6587\u3002"},
		// Words that are too long. A family of four is one character, and so is an e with its accent.
		{"abcdef gh", 4, "abcd\nef \ngh"}, {"abcdef gh", 5, "abcde\nf gh"}, {"a bcdefg", 4, "a \nbcde\nfg"}, {"abc", 1, "a\nb\nc"},
		{"xe\u0301y", 2, "xe\u0301\ny"},
		{"\U0001F468\u200D\U0001F469\u200D\U0001F467ab", 2, "\U0001F468\u200D\U0001F469\u200D\U0001F467\nab"},
		// Hebrew: alef \u05D0, bet \u05D1, gimel \u05D2, dalet \u05D3.
		{"ab \u05D0\u05D1 cd", 20, "ab \u05D1\u05D0 cd"}, {"\u05D0\u05D1 ab \u05D2\u05D3", 20, "\u05D3\u05D2 ab \u05D1\u05D0"},
		{"ab \u05D0\u05D1 \u05D2\u05D3 cd", 20, "ab \u05D3\u05D2 \u05D1\u05D0 cd"}, {"\u05D0\u05D1 12", 20, "12 \u05D1\u05D0"},
		// Wrapped, each row is ordered by itself. Blanks at the end of a row hang over its end, which is left.
		{"ab \u05D0\u05D1 \u05D2\u05D3 cd", 5, "ab \u05D1\u05D0 \n\u05D3\u05D2 cd"}, {"\u05D0\u05D1 ab cd", 6, " ab \u05D1\u05D0\ncd"}};
	for (const FWrapCase& Case : Cases)
	{
		ShowText(ReadOnly(FString(Case.Text)).WrapTextAt(Case.Width * Letter));
		EXPECT_TEXT(Screen(), FString(Case.Screen));
	}
}

TEST_F(FTextWrapping, AtEveryWidthNothingIsLostAndNothingIsTooWide)
{
	const FString Sample(
		TEXT("The quick (brown) fox's  jump/over \u05E9\u05DC\u05D5\u05DD \u4E2D\u6587 e\u0301\u0301 https://a.bc/def?g=h&i end"));
	for (int32 Width = 1; Width < 60; ++Width)
	{
		ShowText(ReadOnly(Sample).WrapTextAt(Width * Letter), 1000.0f, 4000.0f);
		EXPECT_EQ(Screen().Replace(TEXT("\n"), TEXT("")).Len(), Sample.Len()) << "at width " << Width;
		EXPECT_LE(Text->GetDesiredSize().X, Width * Letter) << "at width " << Width;
	}
	FString Long;
	for (int32 Index = 0; Index < 1000; ++Index)
	{
		Long.AppendChar(static_cast<TCHAR>(TEXT('a') + Index % 26));
	}
	ShowText(ReadOnly(Long).WrapTextAt(70 * Letter));
	EXPECT_TEXT(Screen().Replace(TEXT("\n"), TEXT("")), Long);
	EXPECT_EQ(Text->GetDesiredSize(), FVector2D(700.0, 15 * Row)) << "a word of many units breaks like any other";
}

TEST_F(FTextWrapping, TabsEmptyTextsAndMarginsHaveTheirRoom)
{
	ShowText(ReadOnly(TEXT("a\tb")));
	EXPECT_EQ(ReadScreen().GetRowRight(0), 6 * Letter);
	ShowText(ReadOnly(FString()).Margin(FMargin(4.0f)));
	EXPECT_EQ(Text->GetDesiredSize(), FVector2D(8.0, Row + 8.0));
	ShowText(ReadOnly(TEXT("one two")).AutoWrapText(true).Margin(FMargin(4.0f)), 48.0f, 400.0f, 2.0f);
	EXPECT_EQ(Text->GetDesiredSize(), FVector2D(78.0, 2 * Row + 8.0));
	EXPECT_EQ(ReadScreen().GetRowLeft(1), 8.0f);
	EXPECT_EQ(ReadScreen().GetRowRight(1), 68.0f);
}

TEST_F(FTextWrapping, JustificationFollowsTheViewAndTheParagraph)
{
	const TCHAR* const Hebrew = TEXT("\u05E9\u05DC\u05D5\u05DD");
	const std::tuple<const TCHAR*, ETextJustify::Type, float> Cases[] = {{TEXT("four"), ETextJustify::Left, 0.0f},
		{TEXT("four"), ETextJustify::Center, 30.0f}, {TEXT("four"), ETextJustify::Right, 60.0f}, {Hebrew, ETextJustify::Left, 60.0f},
		{Hebrew, ETextJustify::Right, 0.0f}};
	for (const auto& [Shown, Justification, Left] : Cases)
	{
		ShowText(ReadOnly(Shown).AutoWrapText(true).Justification(Justification), 100.0f);
		EXPECT_EQ(ReadScreen().GetRowLeft(0), Left);
	}
	ShowText(ReadOnly(TEXT("\u05D0\u05D1 ab cd")).AutoWrapText(true), 60.0f);
	EXPECT_EQ(ReadScreen().GetRowRight(0), 60.0f) << "a hanging blank takes no room";
	EXPECT_EQ(ReadScreen().GetRowRight(1), 60.0f);
}

class FLabels : public FTextTest
{
protected:
	STextBlock::FArguments LabelArguments(const TCHAR* Shown)
	{
		return STextBlock::FArguments().TextStyle(&Style).Text(FText::FromString(Shown));
	}

	static TSharedRef<STextBlock> Make(const STextBlock::FArguments& Args)
	{
		return MakeSlateDecl<STextBlock>(TEXT("STextBlock")) <<= Args;
	}
};

TEST_F(FLabels, WrapsWithinTheFrameInWhichItLearnsItsWidth)
{
	const TSharedRef<STextBlock> Label = Make(LabelArguments(TEXT("one two three")).AutoWrapText(true));
	const TSharedRef<STextBlock> Below = Make(LabelArguments(TEXT("below")));
	Show(SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[Label] + SVerticalBox::Slot().AutoHeight()[Below], 79.0f);
	EXPECT_TEXT(Screen(), TEXT("one two \nthree\nbelow"));
	EXPECT_EQ(Label->GetDesiredSize(), FVector2D(130.0, 2 * Row));
	Resize(FVector2D(130.0, 400.0));
	EXPECT_TEXT(Screen(), TEXT("one two three\nbelow"));
}

TEST_F(FLabels, CountsTheBlanksAtItsEndsUnlessItIsWrappedAndWrapsAtTheLesserOfTwoWidths)
{
	const std::tuple<const TCHAR*, float, double> Cases[] = {
		{TEXT(" and  "), 0.0f, 6 * Letter}, {TEXT("\u05D0\u05D1 "), 0.0f, 3 * Letter}, {TEXT(" and  "), 200.0f, 4 * Letter}};
	for (const auto& [Shown, WrapAt, Width] : Cases)
	{
		const TSharedRef<STextBlock> Label = Make(LabelArguments(Shown).WrapTextAt(WrapAt));
		Show(Label, 400.0f);
		EXPECT_EQ(Label->GetDesiredSize().X, Width);
	}
	Show(Make(LabelArguments(TEXT("one two three")).AutoWrapText(true).WrapTextAt(80.0f)));
	EXPECT_TEXT(Screen(), TEXT("one two \nthree"));
	Resize(FVector2D(60.0, 400.0));
	EXPECT_TEXT(Screen(), TEXT("one \ntwo \nthree"));
}

TEST_F(FLabels, FollowsABoundTextAndIsNotSqueezedIntoTheRoomOfAShorterOne)
{
	FString Shown(TEXT("one"));
	const TSharedRef<STextBlock> Label = Make(STextBlock::FArguments()
												  .TextStyle(&Style)
												  .Text_Lambda([&Shown] { return FText::FromString(Shown); })
												  .AutoWrapText(true)
												  .WrapTextAt(100.0f));
	Show(SNew(SBox).HAlign(HAlign_Center)[Label], 400.0f);
	EXPECT_EQ(ReadScreen().GetRowLeft(0), 185.0f);
	Shown = TEXT("one two three four");
	AdvanceTime(0.0f);
	EXPECT_TEXT(Screen(), TEXT("one two \nthree four"));
	EXPECT_EQ(ReadScreen().GetRowLeft(0), 150.0f);
	EXPECT_TEXT(Label->GetShownText(), Shown);

	Label->SetColorAndOpacity(FSlateColor(FLinearColor::Red));
	Frame();
	EXPECT_EQ(Application().GetFrameStats().NumDesiredSizes, 0) << "another color is painted without layout";
	EXPECT_GT(Application().GetFrameStats().NumPainted, 0);
}
