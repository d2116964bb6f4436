// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Application/SlateApplication.h"
#include "Support/UserDriver.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SWindow.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

namespace
{
using FOption = TSharedPtr<FString>;
using SOptionBox = SComboBox<FOption>;

/** A box in the corner of a window of 200 by 300, over options "a 0", "b 1", "c 2", "a 3" and so on. Each row has a button "x<index>". */
class ComboBox : public testing::Test
{
protected:
	ComboBox() { Add(3); }

	void Add(int32 Count)
	{
		for (int32 Last = Options.Num() + Count; Options.Num() < Last;)
		{
			const int32 Index = Options.Num();
			Options.Add(MakeShared<FString>(FString::Printf(TEXT("%c %d"), TEXT("abc")[Index % 3], Index)));
		}
	}

	void SetOptions(int32 Count)
	{
		Options.Empty();
		Add(Count);
		Box->RefreshOptions();
		User.Frame();
	}

	TSharedRef<SWidget> MakeRow(FOption Option)
	{
		++NumRowsMade;
		if (!Option.IsValid())
		{
			return SNew(STextBlock).Text(FText::FromString(TEXT("(none)")));
		}
		const FString Name = TEXT("x") + Option->RightChop(2);
		// clang-format off
		return SNew(SHorizontalBox)
			+ SHorizontalBox::Slot().FillWidth(1.0f)[SNew(STextBlock).Text(FText::FromString(*Option))]
			+ SHorizontalBox::Slot().AutoWidth()
			[
				SNew(SButton)
				.Text(FText::FromString(Name))
				.OnClicked_Lambda([this, Option]
				{
					Options.Remove(Option);
					Box->RefreshOptions();
					return FReply::Handled();
				})
			];
		// clang-format on
	}

	void NoteSelection(FOption Option, ESelectInfo::Type SelectInfo)
	{
		const TCHAR* const Ways[] = {TEXT("key"), TEXT("navigation"), TEXT("click"), TEXT("code")};
		Changes += (Option.IsValid() ? *Option : FString(TEXT("null"))) + TEXT(" by ") + Ways[SelectInfo] + TEXT(";");
	}

	FString TakeChanges() { return std::exchange(Changes, FString()); }

	/** Opens the list and plays keys; tells what Enter chooses then. */
	FString ChooseBy(const FString& Keys)
	{
		Box->SetSelectedItem(nullptr);
		User.Play(TEXT("Down ") + Keys);
		TakeChanges();
		User.Play(TEXT("Enter Escape"));
		return TakeChanges();
	}

	TArray<FOption> Options;
	FString Changes;
	int32 NumRowsMade = 0;
	TSharedPtr<SOptionBox> Box;
	TSharedPtr<SVerticalBox> Column;
	// clang-format off
	FUserDriver User{
		SAssignNew(Column, SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Left)
		[
			SAssignNew(Box, SOptionBox)
			.OptionsSource(&Options)
			.OnGenerateWidget_Lambda([this](FOption Option) { return MakeRow(Option); })
			.OnSelectionChanged_Lambda([this](FOption Option, ESelectInfo::Type SelectInfo) { NoteSelection(Option, SelectInfo); })
			[
				SNew(STextBlock).Text(FText::FromString(TEXT("Pick")))
			]
		],
		FVector2D(200.0, 300.0), 1.0f, EDriverFonts::Even};
	// clang-format on
};
} // namespace

TEST_F(ComboBox, AClickOpensItAClickChoosesAndTheSameAgainIsNotReported)
{
	User.Click(TEXT("Pick"));
	EXPECT_TRUE(Box->IsOpen());
	EXPECT_TRUE(User.Sees(TEXT("c 2")));
	const FVector2D Place = User.Find(TEXT("b 1"))->GetCachedGeometry().LocalToAbsolute(FVector2D(2.0, 2.0));
	User.MouseDown(Place);
	User.MouseUp(Place, EKeys::RightMouseButton);
	EXPECT_TRUE(Box->IsOpen()) << "another button";
	User.MouseUp(Place);
	EXPECT_FALSE(Box->IsOpen());
	EXPECT_EQ(TakeChanges(), TEXT("b 1 by click;"));
	EXPECT_TRUE(Box->HasKeyboardFocus());

	User.Click(TEXT("Pick"));
	User.Click(TEXT("b 1"));
	EXPECT_FALSE(Box->IsOpen());
	EXPECT_EQ(TakeChanges(), FString());
	Box->SetSelectedItem(Options[1]);
	Box->SetSelectedItem(Options[2]);
	EXPECT_EQ(TakeChanges(), TEXT("c 2 by code;"));
	EXPECT_EQ(Box->GetSelectedItem(), Options[2]);
}

TEST_F(ComboBox, ClosesWithoutAChoiceAndDisabledOrGone)
{
	User.Click(TEXT("Pick"));
	User.ClickAt(FVector2D(10.0, 5.0));
	EXPECT_FALSE(Box->IsOpen()) << "a click on the box itself closes it too";
	User.Press(TEXT("Enter"));
	EXPECT_TRUE(Box->IsOpen());
	User.Play(TEXT("Down Escape"));
	EXPECT_FALSE(Box->IsOpen());
	User.Press(TEXT("SpaceBar"));
	EXPECT_TRUE(Box->IsOpen());
	User.ClickAt(FVector2D(190.0, 290.0));
	EXPECT_FALSE(Box->IsOpen());
	User.Click(TEXT("Pick"));
	Box->SetEnabled(false);
	User.Frame();
	EXPECT_FALSE(Box->IsOpen());
	User.Click(TEXT("Pick"));
	EXPECT_FALSE(Box->IsOpen());
	EXPECT_EQ(TakeChanges(), FString());
	Box->SetEnabled(true);
	User.Click(TEXT("Pick"));
	Column->ClearChildren();
	Box.Reset();
	User.Press(TEXT("Enter"));
	User.ClickAt(FVector2D(50.0, 50.0));
	EXPECT_FALSE(User.Sees(TEXT("a 0")));
}

TEST_F(ComboBox, KeysMoveTheHighlightAndEnterChooses)
{
	SetOptions(100);
	User.Press(TEXT("Tab"));
	const TPair<const TCHAR*, const TCHAR*> Cases[] = {{TEXT(""), TEXT("")}, {TEXT("Down"), TEXT("a 0 by key;")},
		{TEXT("Down Down Down Up"), TEXT("b 1 by key;")}, {TEXT("Up"), TEXT("a 99 by key;")}, {TEXT("End Down"), TEXT("a 99 by key;")},
		{TEXT("End Home Up"), TEXT("a 0 by key;")}, {TEXT("PageDown PageDown PageUp PageUp"), TEXT("a 0 by key;")}};
	for (const auto& [Keys, Chosen] : Cases)
	{
		EXPECT_EQ(ChooseBy(Keys), Chosen) << FString(Keys);
	}
	User.Press(TEXT("Enter"));
	User.Press(TEXT("PageDown"));
	EXPECT_TRUE(User.Sees(TEXT("a 0"))) << "it moves the highlight within the view";
	User.Press(TEXT("PageDown"));
	EXPECT_FALSE(User.Sees(TEXT("a 0")));
}

TEST_F(ComboBox, TypingFindsAnOptionByItsBeginning)
{
	User.Press(TEXT("Tab"));
	EXPECT_EQ(ChooseBy(TEXT("'1'")), TEXT("b 1 by key;")) << "no option begins so, but a word in one";
	SetOptions(2000);
	// Another key ends the typing.
	const TPair<const TCHAR*, const TCHAR*> Cases[] = {{TEXT("'B'"), TEXT("b 1 by key;")}, {TEXT("'c' ' 5'"), TEXT("c 5 by key;")},
		{TEXT("Down 'a'"), TEXT("a 3 by key;")}, {TEXT("End 'a'"), TEXT("a 0 by key;")}, {TEXT("'a' Down 'a'"), TEXT("a 3 by key;")},
		{TEXT("'z'"), TEXT("")}};
	for (const auto& [Keys, Chosen] : Cases)
	{
		EXPECT_EQ(ChooseBy(Keys), Chosen) << FString(Keys);
	}
	User.Press(TEXT("Down"));
	const FModifierKeysState AltGr(false, true, true);
	FSlateApplication::Get().ProcessKeyCharEvent(User.GetWindow(), FCharacterEvent(u'c', AltGr));
	User.Press(TEXT("Enter"));
	EXPECT_EQ(TakeChanges(), TEXT("c 2 by key;"));
	Box->SetSelectedItem(nullptr);
	TakeChanges();
	// Far options are found in the frames that follow, also when the typing is long over.
	SetOptions(20'000);
	User.Play(TEXT("Down 'a 19998'"));
	EXPECT_FALSE(User.Sees(TEXT("a 19998")));
	User.AdvanceTime(1.1f);
	for (int32 Count = 0; Count < 40; ++Count)
	{
		User.AdvanceTime(0.016f);
	}
	EXPECT_TRUE(User.Sees(TEXT("a 19998")));
	User.Play(TEXT("'b' Enter"));
	EXPECT_EQ(TakeChanges(), TEXT("b 19999 by key;")) << "after a while, a letter begins anew";
}

TEST_F(ComboBox, OnlyRowsInViewAreMade)
{
	SetOptions(100'000);
	Box->SetSelectedItem(Options[50'000]);
	NumRowsMade = 0;
	User.Click(TEXT("Pick"));
	EXPECT_TRUE(User.Sees(TEXT("c 50000")));
	User.Press(TEXT("End"));
	EXPECT_TRUE(User.Sees(TEXT("a 99999")));
	User.Press(TEXT("Home"));
	EXPECT_TRUE(User.Sees(TEXT("a 0")));
	EXPECT_LT(NumRowsMade, 100);
	const int32 Before = NumRowsMade;
	User.Wheel(TEXT("b 1"), -1.0f);
	EXPECT_FALSE(User.Sees(TEXT("a 0")));
	EXPECT_LT(NumRowsMade, Before + 5);
	User.MouseDown(FVector2D(User.GetWindow()->GetPopup()->GetCachedGeometry().GetRenderBoundingRect().Right - 7.0, 290.0));
	EXPECT_TRUE(User.Sees(TEXT("a 99999"))) << "dragged by its bar";
}

TEST_F(ComboBox, AButtonInARowIsTheButtonsAlone)
{
	User.Click(TEXT("Pick"));
	User.Click(TEXT("x1"));
	EXPECT_TRUE(Box->IsOpen());
	EXPECT_FALSE(User.Sees(TEXT("b 1")));
	EXPECT_EQ(TakeChanges(), FString());
	User.Play(TEXT("End Tab Enter"));
	EXPECT_TRUE(Box->IsOpen()) << "the highlighted row's button";
	EXPECT_FALSE(User.Sees(TEXT("c 2")));
	User.Press(TEXT("Enter"));
	EXPECT_EQ(TakeChanges(), TEXT("a 0 by key;")) << "the list has the keys again";
	SetOptions(3);
	EXPECT_EQ(ChooseBy(TEXT("Home Tab Tab Down")), TEXT("c 2 by key;")) << "the highlight went along";
}

TEST_F(ComboBox, ItsOptionsMayChangeWhileItIsOpen)
{
	User.Click(TEXT("Pick"));
	SetOptions(1);
	User.Click(TEXT("a 0"));
	EXPECT_EQ(TakeChanges(), TEXT("a 0 by click;"));

	SetOptions(100);
	User.Click(TEXT("Pick"));
	User.Press(TEXT("End"));
	Options.Insert(Options.Pop(), 0);
	Box->RefreshOptions();
	User.Frame();
	EXPECT_TRUE(User.Sees(TEXT("a 99"))) << "the highlight goes where its option goes";
	User.Press(TEXT("Enter"));
	EXPECT_EQ(TakeChanges(), TEXT("a 99 by key;"));

	User.Click(TEXT("Pick"));
	EXPECT_TRUE(User.Tree().Contains(TEXT("tag=selected"))) << User.Tree();
	User.Press(TEXT("End"));
	Options.Empty();
	User.Press(TEXT("Enter"));
	EXPECT_EQ(TakeChanges(), FString()) << "also without a word";
	EXPECT_TRUE(Box->IsOpen());
	SetOptions(100);
	Options.Empty();
	User.WheelAt(FVector2D(30.0, 100.0), -3.0f);
	EXPECT_FALSE(User.Sees(TEXT("a 0"))) << "what is no option any more is an empty row";
	Options.Add(nullptr);
	Box->RefreshOptions();
	User.Click(TEXT("(none)"));
	EXPECT_EQ(TakeChanges(), TEXT("null by click;"));
	EXPECT_FALSE(Box->IsOpen());
}
