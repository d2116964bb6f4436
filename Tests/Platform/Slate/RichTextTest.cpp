// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TextDriver.h"

#include "Brushes/SlateColorBrush.h"
#include "Framework/Text/ITextDecorator.h"
#include "Framework/Text/RichTextLayoutMarshaller.h"
#include "Framework/Text/SlateTextLayout.h"
#include "Framework/Text/SlateTextRun.h"
#include "Framework/Text/SlateWidgetRun.h"
#include "Rendering/SlateRenderer.h"
#include "Styling/SlateStyle.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"

namespace
{
/** Makes widgets of `<widget/>` runs; remembers what it was handed. */
class FWidgetDecorator final : public ITextDecorator
{
public:
	explicit FWidgetDecorator(TFunction<TSharedRef<SWidget>(const FString&)> InMake)
		: Make(MoveTemp(InMake))
	{
	}

	virtual bool Supports(const FTextRunParseResults& Run, const FString&) const override { return Run.Name == TEXT("widget"); }

	virtual TSharedRef<ISlateRun> Create(const TSharedRef<FTextLayout>& Layout, const FTextRunParseResults& Run, const FString& Markup,
		const TSharedRef<FString>& ModelText, const ISlateStyle*) override
	{
		FRunInfo Info(Run.Name);
		for (const auto& Entry : Run.MetaData)
		{
			Info.MetaData.Add(Entry.Key, Markup.Mid(Entry.Value.BeginIndex, Entry.Value.Len()));
		}
		const FTextRange Range(ModelText->Len(), ModelText->Len() + 1);
		ModelText->AppendChar(0x200B);
		const FString Content = Markup.Mid(Run.ContentRange.BeginIndex, Run.ContentRange.Len());
		Contents.Add(Content);
		return FSlateWidgetRun::Create(Layout, Info, ModelText, FSlateWidgetRun::FWidgetRunInfo(Make(Content), int16(0)), Range);
	}

	TFunction<TSharedRef<SWidget>(const FString&)> Make;
	TArray<FString> Contents;
};

/** Supports nothing, and counts how often it is asked. */
class FAskedDecorator final : public ITextDecorator
{
public:
	explicit FAskedDecorator(int32& InCount)
		: Count(InCount)
	{
	}

	virtual bool Supports(const FTextRunParseResults&, const FString&) const override
	{
		++Count;
		return false;
	}

	virtual TSharedRef<ISlateRun> Create(const TSharedRef<FTextLayout>&, const FTextRunParseResults&, const FString&,
		const TSharedRef<FString>&, const ISlateStyle*) override
	{
		checkf(false, TEXT("Only what is supported is made"));
		return FSlateTextRun::Create(FRunInfo(), MakeShared<FString>(), FTextBlockStyle(), FTextRange(0, 0));
	}

private:
	int32& Count;
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

class FCountingDecorator final : public ITextDecorator
{
public:
	FCountingDecorator(const FTextBlockStyle& InStyle, int32& InCount)
		: Style(InStyle)
		, Count(InCount)
	{
	}

	virtual bool Supports(const FTextRunParseResults&, const FString&) const override { return true; }

	virtual TSharedRef<ISlateRun> Create(const TSharedRef<FTextLayout>&, const FTextRunParseResults& Run, const FString& Markup,
		const TSharedRef<FString>& ModelText, const ISlateStyle*) override
	{
		const int32 Begin = ModelText->Len();
		*ModelText += Markup.Mid(Run.ContentRange.BeginIndex, Run.ContentRange.Len());
		return MakeShared<FCountingRun>(ModelText, Style, FTextRange(Begin, ModelText->Len()), Count);
	}

private:
	FTextBlockStyle Style;
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

	struct FBox
	{
		FSlateRect Rect;
		FLinearColor Color;
	};

	TArray<FBox> FindBoxes()
	{
		TArray<FBox> Boxes;
		CollectBoxes(*GetWindow()->GetDisplayList(), Boxes);
		return Boxes;
	}

	static void CollectBoxes(const FSlateDrawChunk& Chunk, TArray<FBox>& OutBoxes)
	{
		for (const FSlateDrawChunk::FItem& Item : Chunk.GetItems())
		{
			if (const auto* Child = std::get_if<TSharedRef<const FSlateDrawChunk>>(&Item))
			{
				CollectBoxes(**Child, OutBoxes);
			}
			else if (std::holds_alternative<FSlateBoxPayload>(std::get<FSlateDrawElement>(Item).GetPayload()))
			{
				const FSlateDrawElement& Element = std::get<FSlateDrawElement>(Item);
				OutBoxes.Add({Element.GetGeometry().GetRenderBoundingRect(), Element.GetTint()});
			}
		}
	}

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
	const TArray<FBox> Boxes = FindBoxes();
	ASSERT_EQ(Boxes.Num(), 2);
	// Just under the baseline at 15, and through the middle of small letters. A strike has the color of its letters.
	EXPECT_EQ(Boxes[0].Rect, FSlateRect(20.0f, 16.0f, 40.0f, 17.0f));
	EXPECT_EQ(Boxes[0].Color, FLinearColor(0.0f, 0.0f, 1.0f));
	EXPECT_EQ(Boxes[1].Rect, FSlateRect(50.0f, 10.0f, 70.0f, 11.0f));
	EXPECT_EQ(Boxes[1].Color, FLinearColor::Red);
}

TEST_F(FRichText, WrapsAcrossRuns)
{
	ShowMarkup(TEXT("one<Colored>two</>three <Colored>four</>"), {}, 120.0f);
	EXPECT_EQ(Screen(), FString(TEXT("onetwothree \nfour")));
	ShowMarkup(TEXT("one<Colored>two</>three <Colored>four</>"), {}, 80.0f);
	EXPECT_EQ(Screen(), FString(TEXT("onetwoth\nree four")));
}

struct FColumnCase
{
	const TCHAR* Markup;
	/** In letters. */
	int32 Width;
	const TCHAR* Grid;
};

class FTextColumns : public FRichText, public testing::WithParamInterface<FColumnCase>
{
};

TEST_P(FTextColumns, CellsAndListItemsKeepTheirColumn)
{
	ShowMarkup(GetParam().Markup, {}, static_cast<float>(GetParam().Width) * Letter);
	EXPECT_EQ(ReadScreen().ToGrid(Letter), FString(GetParam().Grid));
	Focus();
	Press(TEXT("Ctrl+A"));
	Press(TEXT("Ctrl+C"));
	EXPECT_EQ(GetDesktop().Clipboard, FString(GetParam().Markup).Replace(TEXT("<Colored>"), TEXT("")).Replace(TEXT("</>"), TEXT("")));
}

INSTANTIATE_TEST_SUITE_P(Tables, FTextColumns,
	testing::Values(FColumnCase{TEXT("a\tb\tc\n<Colored>long</>er\t\ty\ntext\nx\ty"), 40, TEXT("a       b  c\nlonger     y\ntext\nx  y")},
		// What is wrapped stays in its column, and a column leaves a third of the width to the last one.
		FColumnCase{TEXT("key\tone two three four\nk\tv"), 18, TEXT("key  one two three\n     four\nk    v")},
		FColumnCase{TEXT("key\tabcdefghijkl"), 10, TEXT("key  abcde\n     fghij\n     kl")},
		FColumnCase{TEXT("a word\tone two\nk\tv"), 12, TEXT("a word  one\n        two\nk       v")},
		FColumnCase{TEXT("many words here\tone\nk\tv"), 12, TEXT("many words\nhere  one\nk       v")},
		FColumnCase{TEXT("a\tb"), 1, TEXT("a\nb")}));

INSTANTIATE_TEST_SUITE_P(Lists, FTextColumns,
	testing::Values(
		FColumnCase{TEXT("  \u2022 one two\n  12. <Colored>three</> four"), 11, TEXT("  \u2022 one two\n  12. three\n      four")},
		FColumnCase{TEXT("  1. \u2022 one two"), 12, TEXT("  1. \u2022 one\n       two")},
		FColumnCase{TEXT("  one two"), 6, TEXT("  one\n  two")}, FColumnCase{TEXT("1. one two"), 7, TEXT("1. one\ntwo")}));

TEST_F(FRichText, TheFirstDecoratorThatSupportsARunMakesIt)
{
	const auto First = MakeShared<FWidgetDecorator>([](const FString&) { return MakeBox(50.0f, 30.0f); });
	const auto Second = MakeShared<FWidgetDecorator>([](const FString&) { return MakeBox(10.0f, 10.0f); });
	ShowMarkup(TEXT("<WIDGET k=\"v\">a&lt;/&gt;b</>"), {First, Second});
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
		{TEXT("ab<widget></><widget></>"), 130.0f, {{20.0, 0.0}, {70.0, 0.0}}},
		{TEXT("ab<widget></><widget></>"), 110.0f, {{20.0, 0.0}, {0.0, 35.0}}},
		{TEXT("ab <widget></> <widget></> cd"), 80.0f, {{30.0, 0.0}, {0.0, 35.0}}},
		{TEXT("abc <widget></>"), 80.0f, {{0.0, 20.0}}},
		{TEXT("abc<widget></>de"), 70.0f, {{0.0, 20.0}}},
		// Too wide for the view, a box keeps its size and has its row for itself.
		{TEXT("ab <widget></> cd <widget></>"), 40.0f, {{0.0, 20.0}, {0.0, 20.0 + 35.0 + 20.0}}},
		{TEXT("\u05D0\u05D1 <widget></> \u05D2"), 200.0f, {{200.0 - 30.0 - 50.0, 0.0}}},
	};
	for (const auto& Case : Cases)
	{
		TArray<TSharedRef<SWidget>> Boxes;
		const auto Make = [&Boxes](const FString&)
		{
			return Boxes.Add_GetRef(MakeBox(50.0f, 30.0f));
		};
		ShowMarkup(Case.Markup, {MakeShared<FWidgetDecorator>(Make)}, Case.Width);
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
	ShowMarkup(TEXT("<widget></>end"), {MakeShared<FWidgetDecorator>([&Box](const FString&) { return Box; })});
	EXPECT_EQ(ReadScreen().GetRowLeft(0), 50.0f);
	Width = 80.0f;
	AdvanceTime(0.0f);
	EXPECT_EQ(ReadScreen().GetRowLeft(0), 80.0f);
}

TEST_F(FRichText, TheMouseReachesTheWidgetsAmongTheText)
{
	FString Clicked;
	TArray<TSharedRef<SWidget>> Buttons;
	const auto MakeButton = [&](const FString& Name)
	{
		return Buttons.Add_GetRef(SNew(SButton).OnClicked_Lambda(
			[&Clicked, Name]
			{
				Clicked += Name;
				return FReply::Handled();
			})[MakeBox(50.0f, 20.0f)]);
	};
	ShowMarkup(TEXT("ab<widget>1</>cd<widget>2</>\n<widget>3</>"), {MakeShared<FWidgetDecorator>(MakeButton)}, 90.0f);
	for (const TSharedRef<SWidget>& Button : Buttons)
	{
		const FVector2D Place = Button->GetCachedGeometry().GetAbsolutePosition() + FVector2D(40.0, 10.0);
		MoveTo(Place);
		EXPECT_TRUE(Button->IsHovered());
		ClickAt(Place);
	}
	EXPECT_EQ(Clicked, FString(TEXT("123")));
	ClickLetter(0);
	EXPECT_EQ(Clicked, FString(TEXT("123")));
	EXPECT_TRUE(Text->HasKeyboardFocus());

	Press(TEXT("Ctrl+A"));
	Press(TEXT("Ctrl+C"));
	EXPECT_EQ(GetDesktop().Clipboard, FString(TEXT("ab\u200Bcd\u200B\n\u200B")));
}

TEST_F(FRichText, WhatIsCutOffAtTheEdgeOfTheViewIsNotHit)
{
	int32 Clicks = 0;
	const auto MakeButton = [&Clicks](const FString&)
	{
		return SNew(SButton).OnClicked_Lambda(
			[&Clicks]
			{
				++Clicks;
				return FReply::Handled();
			})[MakeBox(620.0f, 20.0f)];
	};
	const TSharedRef<FRichTextLayoutMarshaller> Marshaller =
		FRichTextLayoutMarshaller::Create({MakeShared<FWidgetDecorator>(MakeButton)}, &StyleSet);
	SAssignNew(Text, SMultiLineEditableText).Text(INVTEXT("<widget></>")).Marshaller(Marshaller).AutoWrapText(true);
	Show(SNew(SBox).HAlign(HAlign_Left)[SNew(SBox).WidthOverride(300.0f)[Text.ToSharedRef()]]);
	for (const float X : {290.0f, 310.0f})
	{
		ClickAt(FVector2D(X, 10.0));
	}
	EXPECT_EQ(Clicks, 1);
	EXPECT_GE(Text->GetChildren()->GetChildAt(0)->GetCachedGeometry().GetLocalSize().X, 620.0);
}

TEST_F(FRichText, EachTextMakesItsWidgetsAnew)
{
	const auto Decorator = MakeShared<FWidgetDecorator>([](const FString&) { return MakeBox(50.0f, 20.0f); });
	ShowMarkup(TEXT("<widget></>"), {Decorator});
	const TWeakPtr<SWidget> Former = Text->GetChildren()->GetChildAt(0);
	Text->SetText(INVTEXT("<widget></>"));
	Frame();
	EXPECT_EQ(Decorator->Contents.Num(), 2);
	EXPECT_FALSE(Former.IsValid());
	EXPECT_EQ(Text->GetChildren()->Num(), 1);
}

TEST_F(FRichText, WidgetsMadeAnewOutOfViewWaitUntilTheyAreSeen)
{
	constexpr int32 Count = 100;
	float Height = 20.0f;
	const auto Decorator = MakeShared<FWidgetDecorator>([&Height](const FString&) { return MakeBox(50.0f, Height); });
	FString Markup;
	for (int32 Index = 0; Index < Count; ++Index)
	{
		Markup += TEXT("<widget></>\n");
	}
	ShowMarkup(Markup, {Decorator});
	// They should have had the size of the former ones; these have not, which shows when it is asked for.
	Height = 30.0f;
	Text->SetText(FText::FromString(Markup + TEXT("end")));
	Frame();
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

TEST_F(FRichText, OnlyLinesThatChangedAreMeasured)
{
	int32 Count = 0;
	ShowMarkup(TEXT("one\ntwo\nthree"), {MakeShared<FCountingDecorator>(Style, Count)});
	EXPECT_EQ(Count, 3);
	Text->SetText(INVTEXT("one\ntwo\nthree more\nfour"));
	Frame();
	EXPECT_EQ(Count, 3 + 3);
	EXPECT_EQ(Screen(), FString(TEXT("one\ntwo\nthree more\nfour")));

	// Another width wraps what was measured.
	Resize(FVector2D(60.0, 400.0));
	EXPECT_EQ(Screen(), FString(TEXT("one\ntwo\nthree \nmore\nfour")));
	EXPECT_EQ(Count, 3 + 3);
}

TEST_F(FRichText, ATextThatHasGrownIsReadFromWhereItGrew)
{
	int32 NumAsked = 0;
	ShowMarkup(TEXT("<Colored>one</>\n<Large>two</>\n<Colored>three</>"), {MakeShared<FAskedDecorator>(NumAsked)});
	EXPECT_EQ(NumAsked, 3);
	Text->SetText(INVTEXT("<Colored>one</>\n<Large>two</>\n<Colored>three</> more\nfour"));
	EXPECT_EQ(NumAsked, 3 + 2 + 1);
	EXPECT_EQ(Text->GetShownText(), FString(TEXT("one\ntwo\nthree more\nfour")));
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
	const FString Shown = Screen();
	EXPECT_TRUE(Shown.Equals(TEXT("0\n1\n2\n3\n4"))) << Shown;
	MoveTo(FVector2D(50.0, 50.0));
	WheelAt(FVector2D(50.0, 50.0), -1.0f);
	const FString Scrolled = Screen();
	EXPECT_TRUE(Scrolled.Equals(TEXT("3\n4\n5\n6\n7"))) << Scrolled;
}

TEST_F(FRichText, ASelectionOutlivesTheGrowthOfTheText)
{
	const TSharedRef<FRichTextLayoutMarshaller> Marshaller = FRichTextLayoutMarshaller::Create({}, &StyleSet);
	ShowText(Arguments().Text(INVTEXT("<Colored>one two</>")).Marshaller(Marshaller).IsReadOnly(true).ClearTextSelectionOnFocusLoss(false));
	DoubleClickLetter(5);
	EXPECT_EQ(Screen(), FString(TEXT("one [two]")));
	Text->SetText(INVTEXT("<Colored>one two</> three"));
	ClearFocus();
	EXPECT_EQ(Screen(), FString(TEXT("one [two] three")));
	EXPECT_EQ(Text->GetText().ToString(), FString(TEXT("<Colored>one two</> three")));
}

TEST_F(FRichText, ALayoutTellsItsLinesAndRuns)
{
	const TSharedRef<SWidget> Owner = MakeBox(1.0f, 1.0f);
	const TSharedRef<FSlateTextLayout> Layout = FSlateTextLayout::Create(*Owner, Style);
	FRichTextLayoutMarshaller::Create({}, &StyleSet)->SetText(TEXT("ab <Colored>cd ef</>"), *Layout);
	Layout->SetWrappingWidth(50.0f);
	Layout->UpdateIfNeeded();
	EXPECT_EQ(Layout->ToDebugString(), FString(TEXT("0,0 50x20: \"ab \" Colored\"cd \"\n0,20 20x20: Colored\"ef\"\n")));
}
