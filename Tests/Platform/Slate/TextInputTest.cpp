// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TextDriver.h"

#include "Containers/Ticker.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"

class FTextInput : public FTextTest
{
protected:
	/** What was committed, as "Enter:text" or "Focus:text". */
	TArray<FString> Commits;
	TArray<FString> Changes;

	SMultiLineEditableText::FArguments InputArguments()
	{
		SMultiLineEditableText::FArguments Args = Arguments();
		Args.AutoWrapText(true).ModiferKeyForNewLine(EModifierKey::Shift);
		Args.OnTextCommitted_Lambda(
			[this](const FText& Committed, ETextCommit::Type Type)
			{
				const TCHAR* Reason = Type == ETextCommit::OnEnter            ? TEXT("Enter:")
									  : Type == ETextCommit::OnUserMovedFocus ? TEXT("Focus:")
																			  : TEXT("?:");
				Commits.Add(Reason + Committed.ToString());
			});
		Args.OnTextChanged_Lambda([this](const FText& Changed) { Changes.Add(Changed.ToString()); });
		return Args;
	}

	void ShowInput(float Width = 1000.0f)
	{
		ShowText(InputArguments(), Width);
		Focus();
	}
};

TEST_F(FTextInput, EnterCommitsAndWithTheModifierMakesALine)
{
	ShowInput();
	Type(TEXT("a"));
	Press(TEXT("Shift+Enter"));
	Type(TEXT("b"));
	Press(TEXT("Enter"));
	EXPECT_EQ(Commits, TArray<FString>({FString(TEXT("Enter:a\nb"))}));
	EXPECT_EQ(Typed(), FString(TEXT("a\nb")));
	Press(TEXT("Ctrl+Enter"));
	EXPECT_EQ(Commits.Num(), 2);
}

TEST_F(FTextInput, WithoutAModifierEnterMakesALine)
{
	ShowText(InputArguments().ModiferKeyForNewLine(EModifierKey::None));
	Focus();
	Type(TEXT("a"));
	Press(TEXT("Enter"));
	EXPECT_EQ(Typed(), FString(TEXT("a\n")));
	EXPECT_TRUE(Commits.IsEmpty());
}

TEST_F(FTextInput, ASingleLineTakesNoLineEnds)
{
	ShowText(InputArguments().ModiferKeyForNewLine(EModifierKey::None).AllowMultiLine(false));
	Focus();
	GetDesktop().Clipboard = TEXT("a\r\nb");
	Press(TEXT("Ctrl+V"));
	Press(TEXT("Enter"));
	EXPECT_EQ(Commits, TArray<FString>({FString(TEXT("Enter:a b"))}));
}

TEST_F(FTextInput, LosingTheFocusCommitsAndClearsTheSelection)
{
	ShowInput();
	Type(TEXT("abc"));
	Press(TEXT("Ctrl+A"));
	ClearFocus();
	EXPECT_EQ(Commits, TArray<FString>({FString(TEXT("Focus:abc"))}));
	EXPECT_EQ(Screen(), FString(TEXT("abc")));
}

TEST_F(FTextInput, EveryChangeByTheUserIsTold)
{
	ShowInput();
	Type(TEXT("ab"));
	Press(TEXT("Left"));
	Press(TEXT("BackSpace"));
	Text->SetText(INVTEXT("set"));
	EXPECT_EQ(Changes, TArray<FString>({FString(TEXT("a")), FString(TEXT("ab")), FString(TEXT("b"))}));
}

TEST_F(FTextInput, ATextThatIsSetReplacesWhatWasTypedAndItsHistory)
{
	ShowInput();
	Type(TEXT("typed"));
	Text->SetText(FText::GetEmpty());
	EXPECT_EQ(Screen(), FString(TEXT("|")));
	Press(TEXT("Ctrl+Z"));
	EXPECT_EQ(Typed(), FString());
	Text->SetText(INVTEXT("given back"));
	EXPECT_EQ(Screen(), FString(TEXT("given back|")));
}

TEST_F(FTextInput, EscapeClearsTheSelectionAndIsThenLeftToOthers)
{
	ShowInput();
	Type(TEXT("abc"));
	Press(TEXT("Ctrl+A"));
	EXPECT_TRUE(Application().ProcessKeyDownEvent(GetWindow(), FKeyEvent(EKeys::Escape)));
	EXPECT_EQ(Screen(), FString(TEXT("abc|")));
	EXPECT_FALSE(Application().ProcessKeyDownEvent(GetWindow(), FKeyEvent(EKeys::Escape)));
}

TEST_F(FTextInput, AHintStandsInAnEmptyText)
{
	ShowText(InputArguments().HintText(INVTEXT("Type here")));
	EXPECT_EQ(Screen(), FString(TEXT("Type here")));
	EXPECT_EQ(Text->GetHint(), FString(TEXT("Type here")));
	EXPECT_EQ(Text->GetShownText(), FString());
	Focus();
	Type(TEXT("x"));
	EXPECT_EQ(Screen(), FString(TEXT("x|")));
	Press(TEXT("BackSpace"));
	EXPECT_EQ(Screen(), FString(TEXT("|Type here")));
}

TEST_F(FTextInput, WhatIsComposedIsShownButNotYetText)
{
	ShowInput();
	Type(TEXT("ab"));
	Press(TEXT("Left"));
	Compose(TEXT("ni"));
	EXPECT_EQ(Screen(), FString(TEXT("a{ni}|b")));
	EXPECT_EQ(Typed(), FString(TEXT("ab")));
	Compose(TEXT("nih"));
	EXPECT_EQ(Screen(), FString(TEXT("a{nih}|b")));
	Compose(TEXT(""), TEXT("\u4F60"));
	EXPECT_EQ(Screen(), FString(TEXT("a\u4F60|b")));
	Press(TEXT("Ctrl+Z"));
	EXPECT_EQ(Screen(), FString(TEXT("a|b")));
}

TEST_F(FTextInput, AnEnterWithinACompositionCommitsNothing)
{
	ShowInput();
	Compose(TEXT("ni"));
	Press(TEXT("Enter"));
	EXPECT_TRUE(Commits.IsEmpty());
	Compose(TEXT(""), TEXT("\u4F60"));
	EXPECT_TRUE(Commits.IsEmpty());
	Press(TEXT("Enter"));
	EXPECT_EQ(Commits, TArray<FString>({FString(TEXT("Enter:\u4F60"))}));
}

TEST_F(FTextInput, ACompositionReplacesTheSelectionAndCanBeGivenUp)
{
	ShowInput();
	Type(TEXT("abc"));
	Press(TEXT("Shift+Left"));
	Compose(TEXT("ni"));
	EXPECT_EQ(Screen(), FString(TEXT("ab{ni}|")));
	Press(TEXT("Escape"));
	EXPECT_EQ(Screen(), FString(TEXT("ab|")));
	Compose(TEXT("ni"));
	ClearFocus();
	EXPECT_EQ(Commits, TArray<FString>({FString(TEXT("Focus:ab"))}));
	EXPECT_EQ(Screen(), FString(TEXT("ab")));
}

TEST_F(FTextInput, GoingElsewhereGivesACompositionUp)
{
	ShowInput();
	Type(TEXT("ab"));
	Compose(TEXT("ni"));
	Press(TEXT("Ctrl+A"));
	EXPECT_EQ(Screen(), FString(TEXT("[ab]|")));
	Press(TEXT("End"));
	Compose(TEXT("ni"));
	Press(TEXT("Left"));
	EXPECT_EQ(Screen(), FString(TEXT("a|b")));
	Compose(TEXT("ni"));
	ClickLetter(0);
	EXPECT_EQ(Screen(), FString(TEXT("|ab")));
}

TEST_F(FTextInput, AnInputMethodCanReplaceWhatStandsBeforeTheCaret)
{
	ShowInput();
	Type(TEXT("colour"));
	Compose(TEXT(""), TEXT("or"), -3, 3);
	EXPECT_EQ(Screen(), FString(TEXT("color|")));
}

TEST_F(FTextInput, InputMethodsLearnWhereTheCaretIs)
{
	ShowInput();
	Type(TEXT("ab"));
	ASSERT_TRUE(GetDesktop().TextInputArea.IsSet());
	EXPECT_EQ(GetDesktop().TextInputArea->GetTopLeft(), FVector2D(2 * Letter, 0.0));
	EXPECT_EQ(GetDesktop().TextInputArea->Bottom, Row);
	Press(TEXT("Shift+Enter"));
	EXPECT_EQ(GetDesktop().TextInputArea->GetTopLeft(), FVector2D(0.0, Row));
	ClearFocus();
	EXPECT_FALSE(GetDesktop().TextInputArea.IsSet());
}

TEST_F(FTextInput, TheCaretBlinksAndNothingElseIsPainted)
{
	ShowInput();
	Type(TEXT("ab"));
	EXPECT_EQ(Screen(), FString(TEXT("ab|")));
	GetWindow()->TakeDamage();
	AdvanceTime(0.3f);
	EXPECT_TRUE(GetWindow()->TakeDamage().IsEmpty());
	AdvanceTime(0.3f);
	EXPECT_EQ(Screen(), FString(TEXT("ab")));
	const TArray<FSlateRect> Damage = GetWindow()->TakeDamage();
	ASSERT_EQ(Damage.Num(), 1);
	EXPECT_LE(Damage[0].GetSize().X, 4.0);
	EXPECT_EQ(Application().GetFrameStats().NumDesiredSizes, 0);
	AdvanceTime(0.5f);
	EXPECT_EQ(Screen(), FString(TEXT("ab|")));
	ClearFocus();
	Frame();
	EXPECT_FALSE(FTSTicker::GetCoreTicker().GetTimeToNextTick().IsSet());
}

TEST_F(FTextInput, BlinkingCanBeSwitchedOff)
{
	SMultiLineEditableText::SetCaretBlinking(false);
	ShowInput();
	AdvanceTime(0.6f);
	EXPECT_EQ(Screen(), FString(TEXT("|")));
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
	Type(TEXT("1"));
	for (const TCHAR* Line : {TEXT("2"), TEXT("3"), TEXT("4"), TEXT("5")})
	{
		Press(TEXT("Enter"));
		Type(Line);
	}
	EXPECT_EQ(Box->GetDesiredSize().Y, 60.0);
	EXPECT_EQ(Screen(), FString(TEXT("3\n4\n5|")));
	Press(TEXT("Ctrl+Home"));
	EXPECT_EQ(Screen(), FString(TEXT("|1\n2\n3")));
	Press(TEXT("PageDown"));
	EXPECT_EQ(Screen(), FString(TEXT("2\n3\n|4")));
	MoveTo(FVector2D(10.0, 10.0));
	WheelAt(FVector2D(10.0, 10.0), 1.0f);
	EXPECT_TRUE(Screen().StartsWith(TEXT("1\n2\n3")));
}

TEST_F(FTextInput, WithoutWrappingTheCaretScrollsSideways)
{
	ShowText(Arguments(), 50.0f);
	Focus();
	Type(TEXT("abcdefgh"));
	EXPECT_TRUE(Screen().EndsWith(TEXT("efgh|"))) << Screen();
	Press(TEXT("Home"));
	EXPECT_EQ(Screen(), FString(TEXT("|abcde")));
}

class FTextMouse : public FTextTest
{
};

TEST_F(FTextMouse, AClickPlacesTheCaretAtTheNearestGap)
{
	ShowText(FString(TEXT("one two\nthree")));
	ClickAt(FVector2D(44.0, 10.0));
	EXPECT_EQ(Screen(), FString(TEXT("one |two\nthree")));
	ClickAt(FVector2D(46.0, 30.0));
	EXPECT_EQ(Screen(), FString(TEXT("one two\nthree|")));
	ClickAt(FVector2D(500.0, 300.0));
	EXPECT_EQ(Screen(), FString(TEXT("one two\nthree|")));
}

TEST_F(FTextMouse, ClicksSelectWordAndLine)
{
	ShowText(FString(TEXT("one two three\nfour")));
	DoubleClickLetter(6);
	EXPECT_EQ(Screen(), FString(TEXT("one [two]| three\nfour")));
	ClickLetter(6);
	EXPECT_EQ(Screen(), FString(TEXT("[one two three]|\nfour")));
	ClickLetter(6);
	EXPECT_EQ(Screen(), FString(TEXT("one tw|o three\nfour")));
	DoubleClickLetter(1);
	AdvanceTime(0.6f);
	ClickLetter(1);
	EXPECT_EQ(Screen(), FString(TEXT("o|ne two three\nfour")));
}

TEST_F(FTextMouse, DraggingSelects)
{
	ShowText(FString(TEXT("one two three")));
	MouseDown(FVector2D(21.0, 5.0));
	MoveTo(FVector2D(61.0, 5.0));
	EXPECT_EQ(Screen(), FString(TEXT("on[e tw]|o three")));
	MoveTo(FVector2D(1.0, 5.0));
	EXPECT_EQ(Screen(), FString(TEXT("|[on]e two three")));
	MouseUp(FVector2D(1.0, 5.0));
	MoveTo(FVector2D(100.0, 5.0));
	EXPECT_EQ(Screen(), FString(TEXT("|[on]e two three")));
}

TEST_F(FTextMouse, DraggingAfterADoubleClickSelectsWords)
{
	ShowText(FString(TEXT("one two three")));
	ClickLetter(5);
	const FPointerEvent Event(FVector2D(51.0, 5.0), EKeys::LeftMouseButton);
	Application().ProcessMouseButtonDoubleClickEvent(GetWindow(), Event);
	MoveTo(FVector2D(95.0, 5.0));
	EXPECT_EQ(Screen(), FString(TEXT("one [two three]|")));
	MoveTo(FVector2D(15.0, 5.0));
	EXPECT_EQ(Screen(), FString(TEXT("|[one two] three")));
	MouseUp(FVector2D(15.0, 5.0));
}

TEST_F(FTextMouse, ShiftAndAClickExtend)
{
	ShowText(FString(TEXT("one two three")));
	ClickLetter(4);
	HoldModifiers(FModifierKeysState(true, false, false));
	ClickLetter(8);
	EXPECT_EQ(Screen(), FString(TEXT("one [two ]|three")));
	ClickLetter(1);
	EXPECT_EQ(Screen(), FString(TEXT("o|[ne ]two three")));
}

TEST_F(FTextMouse, DraggingBeyondTheEdgeScrolls)
{
	ShowText(FString(TEXT("1\n2\n3\n4\n5\n6")), 200.0f, 60.0f);
	EXPECT_TRUE(Screen().StartsWith(TEXT("1\n2\n3"))) << Screen();
	MouseDown(FVector2D(1.0, 5.0));
	MoveTo(FVector2D(9.0, 100.0));
	for (int32 Step = 0; Step < 20; ++Step)
	{
		AdvanceTime(0.05f);
	}
	EXPECT_EQ(Screen(), FString(TEXT("[4]\n[5]\n[6]|")));
	MouseUp(FVector2D(9.0, 100.0));
	AdvanceTime(0.05f);
	Press(TEXT("Ctrl+C"));
	EXPECT_EQ(GetDesktop().Clipboard, FString(TEXT("1\n2\n3\n4\n5\n6")));
}

TEST_F(FTextMouse, OtherButtonsAreLeftToOthers)
{
	ShowText(FString(TEXT("one")));
	const FPointerEvent Event(FVector2D(5.0, 5.0), EKeys::RightMouseButton);
	EXPECT_FALSE(Application().ProcessMouseButtonDownEvent(GetWindow(), Event));
}

TEST_F(FTextMouse, TheCursorIsABeam)
{
	ShowText(Arguments().Text(INVTEXT("one")).IsReadOnly(true));
	MoveTo(FVector2D(5.0, 5.0));
	EXPECT_EQ(GetDesktop().Cursor, EMouseCursor::TextEditBeam);
}
