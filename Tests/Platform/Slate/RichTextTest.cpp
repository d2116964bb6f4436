// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TextDriver.h"

#include "Brushes/SlateColorBrush.h"
#include "Framework/Text/ITextDecorator.h"
#include "Framework/Text/RichTextLayoutMarshaller.h"
#include "Framework/Text/SlateTextLayout.h"
#include "Framework/Text/SlateTextRun.h"
#include "Framework/Text/SlateWidgetRun.h"
#include "Styling/SlateStyle.h"
#include "Support/DrawnElements.h"
#include "Widgets/Layout/SBox.h"

namespace
{
/** Makes the runs named "made", and counts how often it is asked. */
class FTestDecorator final : public ITextDecorator
{
public:
	using FMakeRun = TFunction<TSharedRef<ISlateRun>(
		const TSharedRef<FTextLayout>& Layout, const FRunInfo& Info, const TSharedRef<FString>& ModelText, const FString& Content)>;

	explicit FTestDecorator(FMakeRun InMakeRun)
		: MakeRun(MoveTemp(InMakeRun))
	{
	}

	/** Widgets, each one invisible character of the text. */
	explicit FTestDecorator(TFunction<TSharedRef<SWidget>(const FString&)> MakeWidget)
		: MakeRun(
			  [MakeWidget](const TSharedRef<FTextLayout>& Layout, const FRunInfo& Info, const TSharedRef<FString>& ModelText,
				  const FString& Content) -> TSharedRef<ISlateRun>
			  {
				  const FTextRange Range(ModelText->Len(), ModelText->Len() + 1);
				  ModelText->AppendChar(0x200B);
				  return FSlateWidgetRun::Create(
					  Layout, Info, ModelText, FSlateWidgetRun::FWidgetRunInfo(MakeWidget(Content), int16(0)), Range);
			  })
	{
	}

	virtual bool Supports(const FTextRunParseResults& Run, const FString&) const override
	{
		++NumAsked;
		return Run.Name == TEXT("made");
	}

	virtual TSharedRef<ISlateRun> Create(const TSharedRef<FTextLayout>& Layout, const FTextRunParseResults& Run, const FString& Markup,
		const TSharedRef<FString>& ModelText, const ISlateStyle*) override
	{
		Contents.Add(Markup.Mid(Run.ContentRange.BeginIndex, Run.ContentRange.Len()));
		return MakeRun(Layout, FRunInfo(Run.Name), ModelText, Contents.Last());
	}

	TArray<FString> Contents;
	mutable int32 NumAsked = 0;

private:
	FMakeRun MakeRun;
};

/** A text run that counts how often it is measured. */
class FCountingRun final : public FSlateTextRun
{
public:
	FCountingRun(const TSharedRef<FString>& InText, const FTextBlockStyle& InStyle, const FTextRange& InRange, int32& InCount)
		: FSlateTextRun(FRunInfo(TEXT("Counting")), InText, InStyle, InRange)
		, Count(InCount)
	{
	}

	virtual FVector2D Measure(int32 StartIndex, int32 EndIndex, float Scale, const FRunTextContext& TextContext) const override
	{
		++Count;
		return FSlateTextRun::Measure(StartIndex, EndIndex, Scale, TextContext);
	}

	virtual bool IsSameAs(const IRun& Other) const override { return Other.GetTextRange() == Range; }

private:
	int32& Count;
};
} // namespace

class FRichText : public FTextTest
{
protected:
	FRichText()
	{
		FTextBlockStyle Large = Style;
		Large.SetFont(FSlateFontInfo("Regular", 2 * Points));
		StyleSet.Set("Large", Large);
		StyleSet.Set("Colored", FTextBlockStyle(Style).SetColorAndOpacity(FLinearColor::Red));
	}

	void ShowMarkup(const FString& Markup, TArray<TSharedRef<ITextDecorator>> Decorators = {}, float Width = 1000.0f)
	{
		const TSharedRef<FRichTextLayoutMarshaller> Marshaller = FRichTextLayoutMarshaller::Create(MoveTemp(Decorators), &StyleSet);
		ShowText(Arguments().Text(FText::FromString(Markup)).Marshaller(Marshaller).IsReadOnly(true).AutoWrapText(true), Width);
	}

	static TSharedRef<SWidget> MakeBox(float Width, float Height) { return SNew(SBox).WidthOverride(Width).HeightOverride(Height); }

	FSlateStyleSet StyleSet = FSlateStyleSet("RichTextTest");
};

TEST_F(FRichText, RunsTakeTheStyleOfTheirNameAndShareABaseline)
{
	ShowMarkup(TEXT("small <Large>big</> <Unknown>default</>"));
	EXPECT_EQ(Text->GetShownText(), FString(TEXT("small big default")));
	// A line is as high as its highest run, and "big" is twice as wide as other words.
	EXPECT_EQ(Text->GetDesiredSize(), FVector2D((6 + 2 * 3 + 8) * Letter, 2 * Row));
}

TEST_F(FRichText, LinesAreDrawnUnderAndThroughLetters)
{
	FTextBlockStyle Link = Style;
	Link.SetUnderlineBrush(FSlateColorBrush(FLinearColor(0.0f, 0.0f, 1.0f)));
	StyleSet.Set("Link", Link);
	FTextBlockStyle Struck = Style;
	Struck.SetColorAndOpacity(FLinearColor::Red);
	Struck.SetStrikeBrush(FSlateColorBrush(FLinearColor::White));
	StyleSet.Set("Struck", Struck);
	ShowMarkup(TEXT("a <Link>bc</> <Struck>de</>"));
	TArray<TPair<FSlateRect, FLinearColor>> Boxes;
	ForEachDrawn(*GetWindow()->GetDisplayList(),
		[&Boxes](const FSlateDrawElement& Element, const FSlateRect&)
		{
			if (std::holds_alternative<FSlateBoxPayload>(Element.GetPayload()))
			{
				Boxes.Add({Element.GetGeometry().GetRenderBoundingRect(), Element.GetTint()});
			}
		});
	// Just under the baseline at 15, and through the middle of small letters. A strike has the color of its letters.
	const TArray<TPair<FSlateRect, FLinearColor>> Expected = {{FSlateRect(20.0f, 16.0f, 40.0f, 17.0f), FLinearColor(0.0f, 0.0f, 1.0f)},
		{FSlateRect(50.0f, 10.0f, 70.0f, 11.0f), FLinearColor::Red}};
	EXPECT_TRUE(Boxes == Expected);
}

TEST_F(FRichText, WrapsAcrossRuns)
{
	ShowMarkup(TEXT("one<Colored>two</>three <Colored>four</>"), {}, 120.0f);
	EXPECT_TEXT(Screen(), TEXT("onetwothree \nfour"));
	ShowMarkup(TEXT("one<Colored>two</>three <Colored>four</>"), {}, 80.0f);
	EXPECT_TEXT(Screen(), TEXT("onetwoth\nree four"));
}

TEST_F(FRichText, CellsAndListItemsKeepTheirColumn)
{
	const FWrapCase Cases[] = {{"a\tb\tc\n<Colored>long</>er\t\ty\ntext\nx\ty", 40, "a       b  c\nlonger     y\ntext\nx  y"},
		// What is wrapped stays in its column, and a column leaves a third of the width to the last one.
		{"key\tone two three four\nk\tv", 18, "key  one two three\n     four\nk    v"},
		{"key\tabcdefghijkl", 10, "key  abcde\n     fghij\n     kl"}, {"a word\tone two\nk\tv", 12, "a word  one\n        two\nk       v"},
		{"many words here\tone\nk\tv", 12, "many words\nhere  one\nk       v"}, {"a\tb", 1, "a\nb"},
		// Lists.
		{"  \u2022 one two\n  12. <Colored>three</> four", 11, "  \u2022 one two\n  12. three\n      four"},
		{"  1. \u2022 one two", 12, "  1. \u2022 one\n       two"}, {"  one two", 6, "  one\n  two"}, {"1. one two", 7, "1. one\ntwo"}};
	for (const FWrapCase& Case : Cases)
	{
		const FString Markup(Case.Text);
		ShowMarkup(Markup, {}, static_cast<float>(Case.Width) * Letter);
		EXPECT_TEXT(ReadScreen().ToGrid(), FString(Case.Screen));
		Focus();
		Play(TEXT("Ctrl+A Ctrl+C"));
		EXPECT_TEXT(GetClipboard(), Markup.Replace(TEXT("<Colored>"), TEXT("")).Replace(TEXT("</>"), TEXT("")));
	}
}

TEST_F(FRichText, TheFirstDecoratorThatSupportsARunMakesIt)
{
	const auto First = MakeShared<FTestDecorator>([](const FString&) { return MakeBox(50.0f, 30.0f); });
	const auto Second = MakeShared<FTestDecorator>([](const FString&) { return MakeBox(10.0f, 10.0f); });
	ShowMarkup(TEXT("<MADE k=\"v\">a&lt;/&gt;b</>"), {First, Second});
	EXPECT_EQ(First->Contents, TArray<FString>({FString(TEXT("a</>b"))}));
	EXPECT_TRUE(Second->Contents.IsEmpty());
	EXPECT_EQ(Text->GetDesiredSize(), FVector2D(50.0, 30.0));
	EXPECT_EQ(Text->GetShownText(), FString());
}

TEST_F(FRichText, WidgetsStandAmongTheWordsOnTheBaselineAndWrapLikeWords)
{
	// The places of the boxes, 50 wide and 30 high; 15 of the 20 pixels of a letter are above the baseline.
	const struct
	{
		const TCHAR* Markup;
		float Width;
		TArray<FVector2D> Places;
	} Cases[] = {
		{TEXT("ab<made></><made></>"), 130.0f, {{20.0, 0.0}, {70.0, 0.0}}},
		{TEXT("ab<made></><made></>"), 110.0f, {{20.0, 0.0}, {0.0, 35.0}}},
		{TEXT("ab <made></> <made></> cd"), 80.0f, {{30.0, 0.0}, {0.0, 35.0}}},
		{TEXT("abc <made></>"), 80.0f, {{0.0, 20.0}}},
		{TEXT("abc<made></>de"), 70.0f, {{0.0, 20.0}}},
		// Too wide for the view, a box keeps its size and has its row for itself.
		{TEXT("ab <made></> cd <made></>"), 40.0f, {{0.0, 20.0}, {0.0, 20.0 + 35.0 + 20.0}}},
		{TEXT("\u05D0\u05D1 <made></> \u05D2"), 200.0f, {{200.0 - 30.0 - 50.0, 0.0}}},
	};
	for (const auto& Case : Cases)
	{
		TArray<TSharedRef<SWidget>> Boxes;
		const auto Make = [&Boxes](const FString&)
		{
			return Boxes.Add_GetRef(MakeBox(50.0f, 30.0f));
		};
		ShowMarkup(Case.Markup, {MakeShared<FTestDecorator>(Make)}, Case.Width);
		ASSERT_EQ(Boxes.Num(), Case.Places.Num());
		for (int32 Index = 0; Index < Boxes.Num(); ++Index)
		{
			EXPECT_EQ(Boxes[Index]->GetCachedGeometry().GetAbsolutePosition(), Case.Places[Index]) << FString(Case.Markup);
			EXPECT_EQ(Boxes[Index]->GetCachedGeometry().GetAbsoluteSize(), FVector2D(50.0, 30.0)) << FString(Case.Markup);
		}
	}
}

TEST_F(FRichText, AWidgetThatGrowsMovesTheWordsBehindIt)
{
	float Width = 50.0f;
	const TSharedRef<SWidget> Box = SNew(SBox).WidthOverride_Lambda([&Width] { return FOptionalSize(Width); }).HeightOverride(20.0f);
	ShowMarkup(TEXT("<made></>end"), {MakeShared<FTestDecorator>([&Box](const FString&) { return Box; })});
	EXPECT_EQ(ReadScreen().GetRowLeft(0), 50.0f);
	Width = 80.0f;
	AdvanceTime(0.0f);
	EXPECT_EQ(ReadScreen().GetRowLeft(0), 80.0f);
}

TEST_F(FRichText, WidgetsMadeAnewOutOfViewWaitUntilTheyAreSeen)
{
	constexpr int32 Count = 100;
	float Height = 20.0f;
	const auto Decorator = MakeShared<FTestDecorator>([&Height](const FString&) { return MakeBox(50.0f, Height); });
	FString Markup;
	for (int32 Index = 0; Index < Count; ++Index)
	{
		Markup += TEXT("<made></>\n");
	}
	ShowMarkup(Markup, {Decorator});
	const TWeakPtr<SWidget> Former = Text->GetChildren()->GetChildAt(0);
	// They should have had the size of the former ones; these have not, which shows when it is asked for.
	Height = 30.0f;
	Text->SetText(FText::FromString(Markup + TEXT("end")));
	Frame();
	EXPECT_FALSE(Former.IsValid());
	EXPECT_LT(Application().GetFrameStats().NumDesiredSizes, Count);
	EXPECT_LT(Text->GetDesiredSize().Y, Count * Height);
	MoveTo(FVector2D(20.0, 20.0));
	for (int32 Index = 0; Index < Count; ++Index)
	{
		WheelAt(FVector2D(20.0, 20.0), -3.0f);
	}
	EXPECT_EQ(Text->GetDesiredSize().Y, Count * Height + Row);
	EXPECT_EQ(Text->GetChildren()->GetChildAt(Count - 1)->GetCachedGeometry().GetAbsolutePosition().Y, 400.0 - Row - Height);
}

TEST_F(FRichText, OfATextThatHasGrownOnlyTheLinesThatChangedAreReadAndMeasured)
{
	int32 NumMeasured = 0;
	const auto MakeRun = [&](const TSharedRef<FTextLayout>&, const FRunInfo&, const TSharedRef<FString>& ModelText,
							 const FString& Content) -> TSharedRef<ISlateRun>
	{
		const int32 Begin = ModelText->Len();
		*ModelText += Content;
		return MakeShared<FCountingRun>(ModelText, Style, FTextRange(Begin, ModelText->Len()), NumMeasured);
	};
	const auto Decorator = MakeShared<FTestDecorator>(FTestDecorator::FMakeRun(MakeRun));
	ShowMarkup(TEXT("<made>one</>\n<made>two</>\n<made>three</>"), {Decorator});
	EXPECT_EQ(NumMeasured, 3);
	Text->SetText(INVTEXT("<made>one</>\n<made>two</>\n<made>three</> more\n<made>four</>"));
	EXPECT_TEXT(Screen(), TEXT("one\ntwo\nthree more\nfour"));
	EXPECT_EQ(NumMeasured, 3 + 2);

	// Another width wraps what was measured.
	Resize(FVector2D(60.0, 400.0));
	EXPECT_TEXT(Screen(), TEXT("one\ntwo\nthree \nmore\nfour"));
	EXPECT_EQ(NumMeasured, 3 + 2);

	// Lines that no decorator made are not even read again.
	ShowMarkup(TEXT("<Colored>one</>\n<Large>two</>\n<Colored>three</>"), {Decorator});
	Decorator->NumAsked = 0;
	Text->SetText(INVTEXT("<Colored>one</>\n<Large>two</>\n<Colored>three</> more\nfour"));
	EXPECT_EQ(Decorator->NumAsked, 2 + 1);
}

TEST_F(FRichText, AnyChangeShowsWhatAFreshViewShows)
{
	const TSharedRef<SWidget> Owner = MakeBox(1.0f, 1.0f);
	const TSharedRef<FSlateTextLayout> Kept = FSlateTextLayout::Create(*Owner, Style);
	const TSharedRef<FRichTextLayoutMarshaller> Marshaller = FRichTextLayoutMarshaller::Create({}, &StyleSet);
	const FString Pieces[] = {FString(TEXT("a")), FString(TEXT(" b")), FString(TEXT("\n")), FString(TEXT("\r\n")), FString(TEXT("<Large>")),
		FString(TEXT("</>")), FString(TEXT("&lt;")), FString(TEXT("<Colored>c</>"))};
	uint32 Random = 1;
	FString Markup;
	for (int32 Step = 0; Step < 2000; ++Step)
	{
		Random = Random * 1664525u + 1013904223u;
		// Mostly it grows; sometimes some of it is lost.
		Markup = (Random >> 8) % 10 == 0 ? Markup.Left((Random >> 12) % (Markup.Len() + 1)) : Markup + Pieces[(Random >> 16) % 8];
		Kept->ClearLines();
		Marshaller->SetText(Markup, *Kept);
		Kept->UpdateIfNeeded();
		const TSharedRef<FSlateTextLayout> Fresh = FSlateTextLayout::Create(*Owner, Style);
		FRichTextLayoutMarshaller::Create({}, &StyleSet)->SetText(Markup, *Fresh);
		Fresh->UpdateIfNeeded();
		ASSERT_EQ(Kept->ToDebugString(), Fresh->ToDebugString()) << Markup;
	}
}

TEST_F(FRichText, OnlyVisibleLinesArePainted)
{
	FString Many;
	for (int32 Line = 0; Line < 1000; ++Line)
	{
		Many += Line > 0 ? TEXT("\n") : TEXT("");
		Many.AppendInt(Line);
	}
	ShowText(Arguments().Text(FText::FromString(Many)).IsReadOnly(true), 200.0f, 100.0f);
	EXPECT_EQ(GetWindow()->GetDisplayList()->GetItems().Num(), 1);
	EXPECT_TEXT(Screen(), TEXT("0\n1\n2\n3\n4"));
	WheelAt(FVector2D(50.0, 50.0), -1.0f);
	EXPECT_TEXT(Screen(), TEXT("3\n4\n5\n6\n7"));
}

TEST_F(FRichText, ASelectionOutlivesTheGrowthOfTheText)
{
	const TSharedRef<FRichTextLayoutMarshaller> Marshaller = FRichTextLayoutMarshaller::Create({}, &StyleSet);
	ShowText(Arguments().Text(INVTEXT("<Colored>one two</>")).Marshaller(Marshaller).IsReadOnly(true).ClearTextSelectionOnFocusLoss(false));
	DoubleClickLetter(5);
	EXPECT_TEXT(Screen(), TEXT("one [two]"));
	Text->SetText(INVTEXT("<Colored>one two</> three"));
	ClearFocus();
	EXPECT_TEXT(Screen(), TEXT("one [two] three"));
	EXPECT_EQ(Text->GetText().ToString(), FString(TEXT("<Colored>one two</> three")));
}
