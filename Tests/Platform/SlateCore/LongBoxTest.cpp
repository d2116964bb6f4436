// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "WrappingProbe.h"

#include "Framework/Application/SlateApplication.h"
#include "Support/UserDriver.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SCompoundWidget.h"
#include "Widgets/SWindow.h"

#include <gtest/gtest.h>

namespace
{
constexpr int32 NumChildren = 10000;

/** Shows its content from a settable offset on, as a scroll box does. */
class SViewport : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SViewport) { _Clipping = EWidgetClipping::ClipToBounds; }
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs) { ChildSlot[InArgs._Content.Widget]; }
	void ShowFrom(double InOffset)
	{
		Offset = InOffset;
		Invalidate(EInvalidateWidgetReason::Layout);
	}

protected:
	void OnArrangeChildren(const FGeometry& Room, FArrangedChildren& ArrangedChildren) const override
	{
		const TSharedRef<SWidget>& Child = ChildSlot.GetWidget();
		ArrangedChildren.AddWidget(
			Room.MakeChild(Child, FVector2D(0.0, -Offset), FVector2D(Room.GetLocalSize().X, Child->GetDesiredSize().Y)));
	}

private:
	double Offset = 0.0;
};

/** A column of 10,000 wrapping texts, 10 high each in a view of 100 by 100. */
class LongBox : public testing::Test
{
protected:
	LongBox()
	{
		for (int32 Index = 0; Index < NumChildren; ++Index)
		{
			Add();
		}
		User.Frame();
	}

	void Add()
	{
		Texts.Add(SNew(SWrappingProbe).Area(1000.0f));
		Box->AddSlot().AutoHeight()[Texts.Last()];
	}

	const FSlateFrameStats& Stats() const { return FSlateApplication::Get().GetFrameStats(); }
	double TopOf(int32 Index) const { return Texts[Index]->GetCachedGeometry().GetAccumulatedLayoutTransform().Translation.Y; }
	double LengthOfBox() const { return Box->GetDesiredSize().Y; }

	TArray<TSharedRef<SWrappingProbe>> Texts;
	TSharedRef<SVerticalBox> Box = SNew(SVerticalBox);
	TSharedRef<SViewport> View = SNew(SViewport)[Box];
	FUserDriver User{View, FVector2D(100.0, 100.0), 1.0f, EDriverFonts::Even};
};
} // namespace

TEST_F(LongBox, KnowsTheHeightOfEveryChildAndScrollingTouchesWhatCanBeSeen)
{
	EXPECT_EQ(LengthOfBox(), NumChildren * 10.0);
	EXPECT_EQ(Texts.Last()->NumSized, 2) << "once before its width is known, and once after";
	View->ShowFrom(50000.0);
	User.Frame();
	EXPECT_EQ(TopOf(5000), 0.0);
	EXPECT_EQ(TopOf(5009), 90.0);
	EXPECT_LE(Stats().NumArranged, 30);
	EXPECT_LE(Stats().NumPainted, 20);
	EXPECT_EQ(Stats().NumDesiredSizes, 1) << "the viewport was told to";
}

TEST_F(LongBox, GrowingAtTheEndCostsNoMoreThanInAShortOne)
{
	View->ShowFrom(99900.0);
	User.Frame();
	Texts.Last()->SetArea(2000.0f);
	User.Frame();
	EXPECT_EQ(LengthOfBox(), NumChildren * 10.0 + 10.0);
	EXPECT_LE(Stats().NumDesiredSizes, 5);
	EXPECT_LE(Stats().NumArranged, 10);
	EXPECT_LE(Stats().NumPainted, 20);

	Add();
	User.Frame();
	EXPECT_EQ(LengthOfBox(), NumChildren * 10.0 + 20.0) << "the new text got its width in the same frame";
	EXPECT_LE(Stats().NumArranged, 40);
}

TEST_F(LongBox, AChangeAboveTheViewMovesWhatIsSeen)
{
	View->ShowFrom(50000.0);
	User.Frame();
	Texts[10]->SetArea(3000.0f);
	User.Frame();
	EXPECT_EQ(LengthOfBox(), NumChildren * 10.0 + 20.0);
	EXPECT_EQ(TopOf(5000), 20.0);
	EXPECT_EQ(Texts[11]->NumSized, 2);
	EXPECT_LE(Stats().NumArranged, 40);
}

TEST_F(LongBox, AnotherWidthReachesEveryChildAndWhatCollapsesOrGoesFarAwayShortensIt)
{
	User.Resize(FVector2D(50.0, 100.0));
	EXPECT_EQ(LengthOfBox(), NumChildren * 20.0);
	User.Resize(FVector2D(100.0, 100.0));
	Texts[7000]->SetVisibility(EVisibility::Collapsed);
	Box->RemoveSlot(Texts[8000]);
	User.Frame();
	EXPECT_EQ(LengthOfBox(), NumChildren * 10.0 - 20.0);
	View->ShowFrom(80000.0);
	User.Frame();
	EXPECT_EQ(TopOf(8002), 0.0);
	EXPECT_LE(Stats().NumPainted, 20);
}
