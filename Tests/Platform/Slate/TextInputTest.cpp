// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TextDriver.h"

#include "Containers/Ticker.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"

class FTextInput : public FTextTest
{
protected:
	/** What was committed since the last call, as in "Enter:text;Focus:text;". */
	FString TakeCommits() { return std::exchange(Commits, FString()); }

	void ShowInput(EModifierKey::Type ModifierForNewLine = EModifierKey::Shift, bool bMultiLine = true)
	{
		const auto Commit = [this](const FText& Committed, ETextCommit::Type Type)
		{
			const TCHAR* const Reason = Type == ETextCommit::OnEnter            ? TEXT("Enter:")
										: Type == ETextCommit::OnUserMovedFocus ? TEXT("Focus:")
																				: TEXT("?:");
			Commits += Reason + Committed.ToString() + TEXT(";");
		};
		ShowText(Arguments()
					 .AutoWrapText(true)
					 .HintText(INVTEXT("Hint"))
					 .ModiferKeyForNewLine(ModifierForNewLine)
					 .AllowMultiLine(bMultiLine)
					 .OnTextCommitted_Lambda(Commit));
		Focus();
	}

	FString Commits;
};

TEST_F(FTextInput, EnterCommitsOrMakesALine)
{
	ShowInput();
	Play(TEXT("'a' Shift+Enter 'b' Enter"));
	EXPECT_TEXT(TakeCommits(), TEXT("Enter:a\nb;"));
	Play(TEXT("Ctrl+Enter"));
	EXPECT_TEXT(TakeCommits(), TEXT("Enter:a\nb;"));
	Play(TEXT("Ctrl+A"));
	ClearFocus();
	EXPECT_TEXT(TakeCommits(), TEXT("Focus:a\nb;"));
	EXPECT_TEXT(Screen(), TEXT("a\nb")) << "the selection went with the focus";
	ShowInput(EModifierKey::None);
	Play(TEXT("'a' Enter"));
	EXPECT_TEXT(Typed() + TakeCommits(), TEXT("a\n")) << "without a modifier";
	ShowInput(EModifierKey::None, false);
	SetClipboard(TEXT("a\r\nb"));
	Play(TEXT("Ctrl+V Enter"));
	EXPECT_TEXT(TakeCommits(), TEXT("Enter:a b;")) << "a single line takes no line ends";
}

TEST_F(FTextInput, ATextThatIsSetReplacesWhatWasTypedAndItsHistory)
{
	ShowInput();
	EXPECT_TEXT(Screen(), TEXT("|Hint"));
	EXPECT_TEXT(Text->GetHint(), TEXT("Hint"));
	EXPECT_TEXT(Text->GetShownText(), TEXT(""));
	Type(TEXT("typed"));
	EXPECT_TEXT(Screen(), TEXT("typed|"));
	Text->SetText(FText::GetEmpty());
	EXPECT_TEXT(Screen(), TEXT("|Hint"));
	Play(TEXT("Ctrl+Z"));
	EXPECT_TEXT(Typed(), TEXT(""));
	Text->SetText(INVTEXT("given back"));
	EXPECT_TEXT(Screen(), TEXT("given back|"));
}

TEST_F(FTextInput, EscapeClearsTheSelectionAndIsThenLeftToOthers)
{
	ShowInput();
	Play(TEXT("'abc' Ctrl+A"));
	EXPECT_TRUE(Application().ProcessKeyDownEvent(GetWindow(), FKeyEvent(EKeys::Escape)));
	EXPECT_TEXT(Screen(), TEXT("abc|"));
	EXPECT_FALSE(Application().ProcessKeyDownEvent(GetWindow(), FKeyEvent(EKeys::Escape)));
}

TEST_F(FTextInput, WhatIsComposedIsShownButNotYetText)
{
	ShowInput();
	Play(TEXT("'ab' Left"));
	Compose(TEXT("ni"));
	EXPECT_TEXT(Screen(), TEXT("a{ni}|b"));
	Compose(TEXT("nih"));
	EXPECT_TEXT(Screen(), TEXT("a{nih}|b"));
	Play(TEXT("Enter"));
	EXPECT_TEXT(Typed() + TakeCommits(), TEXT("ab")) << "Enter is the input method's";
	Compose(TEXT(""), TEXT("\u4F60"));
	EXPECT_TEXT(Screen(), TEXT("a\u4F60|b"));
	Play(TEXT("Ctrl+Z"));
	EXPECT_TEXT(Screen(), TEXT("a|b"));
	Play(TEXT("End 'colour'"));
	Compose(TEXT(""), TEXT("or"), -3, 3);
	EXPECT_TEXT(Screen(), TEXT("abcolor|")) << "what stands before the caret can be replaced";
}

TEST_F(FTextInput, ACompositionReplacesTheSelectionAndIsGivenUpByGoingElsewhere)
{
	ShowInput();
	Play(TEXT("'abc' Shift+Left"));
	Compose(TEXT("ni"));
	EXPECT_TEXT(Screen(), TEXT("ab{ni}|"));
	Play(TEXT("Ctrl+A"));
	EXPECT_TEXT(Screen(), TEXT("[ab]|"));
	for (const auto& [Key, Shown] : {std::pair(TEXT("End"), TEXT("ab|")), {TEXT("Escape"), TEXT("ab|")}, {TEXT("Left"), TEXT("a|b")}})
	{
		Play(Key);
		EXPECT_TEXT(Screen(), Shown);
		Compose(TEXT("ni"));
	}
	ClickLetter(0);
	EXPECT_TEXT(Screen(), TEXT("|ab"));
	Compose(TEXT("ni"));
	ClearFocus();
	EXPECT_TEXT(TakeCommits() + Screen(), TEXT("Focus:ab;ab"));
	Focus();
	EXPECT_TEXT(Screen(), TEXT("|ab"));
}

TEST_F(FTextInput, InputMethodsLearnWhereTheCaretIs)
{
	ShowInput();
	Type(TEXT("ab"));
	ASSERT_TRUE(GetDesktop().TextInputArea.IsSet());
	EXPECT_EQ(GetDesktop().TextInputArea->GetTopLeft(), FVector2D(2 * Letter, 0.0));
	EXPECT_EQ(GetDesktop().TextInputArea->Bottom, Row);
	Play(TEXT("Shift+Enter"));
	EXPECT_EQ(GetDesktop().TextInputArea->GetTopLeft(), FVector2D(0.0, Row));
	ClearFocus();
	EXPECT_FALSE(GetDesktop().TextInputArea.IsSet());
	Focus();
	EXPECT_TRUE(GetDesktop().TextInputArea.IsSet());
	ShowText(Arguments());
	EXPECT_FALSE(GetDesktop().TextInputArea.IsSet()) << "of one that is gone";
}

TEST_F(FTextInput, TheCaretBlinksAndNothingElseIsPainted)
{
	ShowInput();
	Type(TEXT("ab"));
	EXPECT_TEXT(Screen(), TEXT("ab|"));
	GetWindow()->TakeDamage();
	AdvanceTime(0.3f);
	EXPECT_TRUE(GetWindow()->TakeDamage().IsEmpty());
	AdvanceTime(0.3f);
	EXPECT_TEXT(Screen(), TEXT("ab"));
	const TArray<FSlateRect> Damage = GetWindow()->TakeDamage();
	ASSERT_EQ(Damage.Num(), 1);
	EXPECT_LE(Damage[0].GetSize().X, 4.0);
	EXPECT_EQ(Application().GetFrameStats().NumDesiredSizes, 0);
	AdvanceTime(0.5f);
	EXPECT_TEXT(Screen(), TEXT("ab|"));
	ClearFocus();
	EXPECT_FALSE(FTSTicker::GetCoreTicker().GetTimeToNextTick().IsSet());

	SMultiLineEditableText::SetCaretBlinking(false);
	Focus();
	AdvanceTime(0.6f);
	EXPECT_TEXT(Screen(), TEXT("ab|"));
	EXPECT_FALSE(FTSTicker::GetCoreTicker().GetTimeToNextTick().IsSet());
	SMultiLineEditableText::SetCaretBlinking(true);
}

TEST_F(FTextInput, TheBoxGrowsWithItsTextAndThenScrolls)
{
	Text = SNew(SMultiLineEditableText).TextStyle(&Style).AutoWrapText(true);
	const TSharedRef<SWidget> Box = SNew(SBox).MinDesiredHeight(40.0f).MaxDesiredHeight(60.0f)[Text.ToSharedRef()];
	Show(SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[Box], 200.0f);
	Focus();
	EXPECT_EQ(Box->GetDesiredSize().Y, 40.0);
	Play(TEXT("'1' Enter '2' Enter '3' Enter '4' Enter '5'"));
	EXPECT_EQ(Box->GetDesiredSize().Y, 60.0);
	EXPECT_TEXT(Screen(), TEXT("3\n4\n5|"));
	Play(TEXT("Ctrl+Home"));
	EXPECT_TEXT(Screen(), TEXT("|1\n2\n3"));
	Play(TEXT("PageDown"));
	EXPECT_TEXT(Screen(), TEXT("2\n3\n|4"));
	WheelAt(FVector2D(10.0, 10.0), 1.0f);
	EXPECT_TRUE(Screen().StartsWith(TEXT("1\n2\n3")));

	// Without wrapping the caret scrolls sideways.
	ShowText(Arguments(), 50.0f);
	Focus();
	Type(TEXT("abcdefgh"));
	EXPECT_TRUE(Screen().EndsWith(TEXT("efgh|"))) << Screen();
	Play(TEXT("Home"));
	EXPECT_TEXT(Screen(), TEXT("|abcde"));
}

class FTextMouse : public FTextTest
{
};

TEST_F(FTextMouse, ClicksPlaceTheCaretAtTheNearestGapAndSelectWordsAndLines)
{
	ShowText("one two\nthree");
	for (const auto& [Place, Shown] : {std::pair(FVector2D(44.0, 10.0), TEXT("one |two\nthree")),
			 {FVector2D(46.0, 30.0), TEXT("one two\nthree|")}, {FVector2D(500.0, 300.0), TEXT("one two\nthree|")}})
	{
		ClickAt(Place);
		EXPECT_TEXT(Screen(), Shown);
	}
	EXPECT_EQ(GetDesktop().Cursor, EMouseCursor::TextEditBeam);
	DoubleClickLetter(5);
	EXPECT_TEXT(Screen(), TEXT("one [two]|\nthree"));
	ClickLetter(5);
	EXPECT_TEXT(Screen(), TEXT("[one two]|\nthree"));
	ClickLetter(5);
	EXPECT_TEXT(Screen(), TEXT("one t|wo\nthree"));
	DoubleClickLetter(1);
	AdvanceTime(0.6f);
	ClickLetter(1);
	EXPECT_TEXT(Screen(), TEXT("o|ne two\nthree"));
	const FPointerEvent Other(FVector2D(5.0, 5.0), EKeys::RightMouseButton);
	EXPECT_FALSE(Application().ProcessMouseButtonDownEvent(GetWindow(), Other)) << "left to others";
}

TEST_F(FTextMouse, DraggingAndShiftSelect)
{
	ShowText("one two three");
	MouseDown(FVector2D(21.0, 5.0));
	MoveTo(FVector2D(61.0, 5.0));
	EXPECT_TEXT(Screen(), TEXT("on[e tw]|o three"));
	MoveTo(FVector2D(1.0, 5.0));
	EXPECT_TEXT(Screen(), TEXT("|[on]e two three"));
	MouseUp(FVector2D(1.0, 5.0));
	MoveTo(FVector2D(100.0, 5.0));
	EXPECT_TEXT(Screen(), TEXT("|[on]e two three"));

	// After a double click by words.
	ClickLetter(5);
	Application().ProcessMouseButtonDoubleClickEvent(GetWindow(), FPointerEvent(FVector2D(51.0, 5.0), EKeys::LeftMouseButton));
	MoveTo(FVector2D(95.0, 5.0));
	EXPECT_TEXT(Screen(), TEXT("one [two three]|"));
	MoveTo(FVector2D(15.0, 5.0));
	EXPECT_TEXT(Screen(), TEXT("|[one two] three"));
	MouseUp(FVector2D(15.0, 5.0));

	AdvanceTime(1.0f);
	ClickLetter(4);
	HoldModifiers(FModifierKeysState(true, false, false));
	ClickLetter(8);
	EXPECT_TEXT(Screen(), TEXT("one [two ]|three"));
	ClickLetter(1);
	EXPECT_TEXT(Screen(), TEXT("o|[ne ]two three"));
}

TEST_F(FTextMouse, DraggingBeyondTheEdgeScrolls)
{
	ShowText("1\n2\n3\n4\n5\n6", 200.0f, 60.0f);
	EXPECT_TRUE(Screen().StartsWith(TEXT("1\n2\n3"))) << Screen();
	MouseDown(FVector2D(1.0, 5.0));
	MoveTo(FVector2D(9.0, 100.0));
	for (int32 Step = 0; Step < 20; ++Step)
	{
		AdvanceTime(0.05f);
	}
	EXPECT_TEXT(Screen(), TEXT("[4]\n[5]\n[6]|"));
	MouseUp(FVector2D(9.0, 100.0));
	AdvanceTime(0.05f);
	Play(TEXT("Ctrl+C"));
	EXPECT_TEXT(GetClipboard(), TEXT("1\n2\n3\n4\n5\n6"));
}
