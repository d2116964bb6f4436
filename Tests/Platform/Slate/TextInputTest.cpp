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
	Key(EKeys::Enter, Shift());
	Type(TEXT("b"));
	Key(EKeys::Enter);
	EXPECT_EQ(Commits, TArray<FString>({FString(TEXT("Enter:a\nb"))}));
	EXPECT_EQ(Typed(), FString(TEXT("a\nb")));
	Key(EKeys::Enter, Control());
	EXPECT_EQ(Commits.Num(), 2);
}

TEST_F(FTextInput, WithoutAModifierEnterMakesALine)
{
	ShowText(InputArguments().ModiferKeyForNewLine(EModifierKey::None));
	Focus();
	Type(TEXT("a"));
	Key(EKeys::Enter);
	EXPECT_EQ(Typed(), FString(TEXT("a\n")));
	EXPECT_TRUE(Commits.IsEmpty());
}

TEST_F(FTextInput, ASingleLineTakesNoLineEnds)
{
	ShowText(InputArguments().ModiferKeyForNewLine(EModifierKey::None).AllowMultiLine(false));
	Focus();
	Desktop->Clipboard = TEXT("a\r\nb");
	Key(EKeys::V, Control());
	Key(EKeys::Enter);
	EXPECT_EQ(Commits, TArray<FString>({FString(TEXT("Enter:a b"))}));
}

TEST_F(FTextInput, LosingTheFocusCommitsAndClearsTheSelection)
{
	ShowInput();
	Type(TEXT("abc"));
	Key(EKeys::A, Control());
	Application().ClearKeyboardFocus();
	EXPECT_EQ(Commits, TArray<FString>({FString(TEXT("Focus:abc"))}));
	EXPECT_EQ(Screen(), FString(TEXT("abc")));
}

TEST_F(FTextInput, EveryChangeByTheUserIsTold)
{
	ShowInput();
	Type(TEXT("ab"));
	Key(EKeys::Left);
	Key(EKeys::BackSpace);
	Text->SetText(INVTEXT("set"));
	EXPECT_EQ(Changes, TArray<FString>({FString(TEXT("a")), FString(TEXT("ab")), FString(TEXT("b"))}));
}

TEST_F(FTextInput, ATextThatIsSetReplacesWhatWasTypedAndItsHistory)
{
	ShowInput();
	Type(TEXT("typed"));
	Text->SetText(FText::GetEmpty());
	EXPECT_EQ(Screen(), FString(TEXT("|")));
	Key(EKeys::Z, Control());
	EXPECT_EQ(Typed(), FString());
	Text->SetText(INVTEXT("given back"));
	EXPECT_EQ(Screen(), FString(TEXT("given back|")));
}

TEST_F(FTextInput, EscapeClearsTheSelectionAndIsThenLeftToOthers)
{
	ShowInput();
	Type(TEXT("abc"));
	Key(EKeys::A, Control());
	EXPECT_TRUE(Application().ProcessKeyDownEvent(Window.ToSharedRef(), FKeyEvent(EKeys::Escape)));
	EXPECT_EQ(Screen(), FString(TEXT("abc|")));
	EXPECT_FALSE(Application().ProcessKeyDownEvent(Window.ToSharedRef(), FKeyEvent(EKeys::Escape)));
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
	Key(EKeys::BackSpace);
	EXPECT_EQ(Screen(), FString(TEXT("|Type here")));
}

TEST_F(FTextInput, WhatIsComposedIsShownButNotYetText)
{
	ShowInput();
	Type(TEXT("ab"));
	Key(EKeys::Left);
	Compose(TEXT("ni"));
	EXPECT_EQ(Screen(), FString(TEXT("a{ni}|b")));
	EXPECT_EQ(Typed(), FString(TEXT("ab")));
	Compose(TEXT("nih"));
	EXPECT_EQ(Screen(), FString(TEXT("a{nih}|b")));
	Compose(TEXT(""), TEXT("\u4F60"));
	EXPECT_EQ(Screen(), FString(TEXT("a\u4F60|b")));
	Key(EKeys::Z, Control());
	EXPECT_EQ(Screen(), FString(TEXT("a|b")));
}

TEST_F(FTextInput, AnEnterWithinACompositionCommitsNothing)
{
	ShowInput();
	Compose(TEXT("ni"));
	Key(EKeys::Enter);
	EXPECT_TRUE(Commits.IsEmpty());
	Compose(TEXT(""), TEXT("\u4F60"));
	EXPECT_TRUE(Commits.IsEmpty());
	Key(EKeys::Enter);
	EXPECT_EQ(Commits, TArray<FString>({FString(TEXT("Enter:\u4F60"))}));
}

TEST_F(FTextInput, ACompositionReplacesTheSelectionAndCanBeGivenUp)
{
	ShowInput();
	Type(TEXT("abc"));
	Key(EKeys::Left, Shift());
	Compose(TEXT("ni"));
	EXPECT_EQ(Screen(), FString(TEXT("ab{ni}|")));
	Key(EKeys::Escape);
	EXPECT_EQ(Screen(), FString(TEXT("ab|")));
	Compose(TEXT("ni"));
	Application().ClearKeyboardFocus();
	EXPECT_EQ(Commits, TArray<FString>({FString(TEXT("Focus:ab"))}));
	EXPECT_EQ(Screen(), FString(TEXT("ab")));
}

TEST_F(FTextInput, GoingElsewhereGivesACompositionUp)
{
	ShowInput();
	Type(TEXT("ab"));
	Compose(TEXT("ni"));
	Key(EKeys::A, Control());
	EXPECT_EQ(Screen(), FString(TEXT("[ab]|")));
	Key(EKeys::End);
	Compose(TEXT("ni"));
	Key(EKeys::Left);
	EXPECT_EQ(Screen(), FString(TEXT("a|b")));
	Compose(TEXT("ni"));
	Click(0);
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
	ASSERT_TRUE(Desktop->InputArea.IsSet());
	EXPECT_EQ(Desktop->InputArea->GetTopLeft(), FVector2D(2 * Letter, 0.0));
	EXPECT_EQ(Desktop->InputArea->Bottom, Row);
	Key(EKeys::Enter, Shift());
	EXPECT_EQ(Desktop->InputArea->GetTopLeft(), FVector2D(0.0, Row));
	Application().ClearKeyboardFocus();
	EXPECT_FALSE(Desktop->InputArea.IsSet());
}

TEST_F(FTextInput, TheCaretBlinksAndNothingElseIsPainted)
{
	ShowInput();
	Type(TEXT("ab"));
	EXPECT_EQ(Screen(), FString(TEXT("ab|")));
	Window->TakeDamage();
	Frame(0.3f);
	EXPECT_TRUE(Window->TakeDamage().IsEmpty());
	Frame(0.3f);
	EXPECT_EQ(Screen(), FString(TEXT("ab")));
	const TArray<FSlateRect> Damage = Window->TakeDamage();
	ASSERT_EQ(Damage.Num(), 1);
	EXPECT_LE(Damage[0].GetSize().X, 4.0);
	EXPECT_EQ(Application().GetFrameStats().NumDesiredSizes, 0);
	Frame(0.5f);
	EXPECT_EQ(Screen(), FString(TEXT("ab|")));
	Application().ClearKeyboardFocus();
	Frame(0.0f);
	EXPECT_FALSE(FTSTicker::GetCoreTicker().GetTimeToNextTick().IsSet());
}

TEST_F(FTextInput, BlinkingCanBeSwitchedOff)
{
	SMultiLineEditableText::SetCaretBlinking(false);
	ShowInput();
	Frame(0.6f);
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
		Key(EKeys::Enter);
		Type(Line);
	}
	EXPECT_EQ(Box->GetDesiredSize().Y, 60.0);
	EXPECT_EQ(Screen(), FString(TEXT("3\n4\n5|")));
	Key(EKeys::Home, Control());
	EXPECT_EQ(Screen(), FString(TEXT("|1\n2\n3")));
	Key(EKeys::PageDown);
	EXPECT_EQ(Screen(), FString(TEXT("2\n3\n|4")));
	MoveMouse(10.0f, 10.0f);
	EXPECT_TRUE(Wheel(1.0f));
	EXPECT_FALSE(Wheel(1.0f));
	EXPECT_TRUE(Screen().StartsWith(TEXT("1\n2\n3")));
}

TEST_F(FTextInput, WithoutWrappingTheCaretScrollsSideways)
{
	ShowText(Arguments(), 50.0f);
	Focus();
	Type(TEXT("abcdefgh"));
	EXPECT_TRUE(Screen().EndsWith(TEXT("efgh|"))) << Screen();
	Key(EKeys::Home);
	EXPECT_EQ(Screen(), FString(TEXT("|abcde")));
}

class FTextMouse : public FTextTest
{
};

TEST_F(FTextMouse, AClickPlacesTheCaretAtTheNearestGap)
{
	ShowText(FString(TEXT("one two\nthree")));
	Press(44.0f, 10.0f);
	Release();
	EXPECT_EQ(Screen(), FString(TEXT("one |two\nthree")));
	Press(46.0f, 30.0f);
	Release();
	EXPECT_EQ(Screen(), FString(TEXT("one two\nthree|")));
	Press(500.0f, 300.0f);
	Release();
	EXPECT_EQ(Screen(), FString(TEXT("one two\nthree|")));
}

TEST_F(FTextMouse, ClicksSelectWordAndLine)
{
	ShowText(FString(TEXT("one two three\nfour")));
	DoubleClick(6);
	EXPECT_EQ(Screen(), FString(TEXT("one [two]| three\nfour")));
	Click(6);
	EXPECT_EQ(Screen(), FString(TEXT("[one two three]|\nfour")));
	Click(6);
	EXPECT_EQ(Screen(), FString(TEXT("one tw|o three\nfour")));
	DoubleClick(1);
	Frame(0.6f);
	Click(1);
	EXPECT_EQ(Screen(), FString(TEXT("o|ne two three\nfour")));
}

TEST_F(FTextMouse, DraggingSelects)
{
	ShowText(FString(TEXT("one two three")));
	Press(21.0f, 5.0f);
	MoveMouse(61.0f, 5.0f);
	EXPECT_EQ(Screen(), FString(TEXT("on[e tw]|o three")));
	MoveMouse(1.0f, 5.0f);
	EXPECT_EQ(Screen(), FString(TEXT("|[on]e two three")));
	Release();
	MoveMouse(100.0f, 5.0f);
	EXPECT_EQ(Screen(), FString(TEXT("|[on]e two three")));
}

TEST_F(FTextMouse, DraggingAfterADoubleClickSelectsWords)
{
	ShowText(FString(TEXT("one two three")));
	Click(5);
	const FPointerEvent Event(FVector2D(51.0, 5.0), EKeys::LeftMouseButton);
	Application().ProcessMouseButtonDoubleClickEvent(Window.ToSharedRef(), Event);
	MoveMouse(95.0f, 5.0f);
	EXPECT_EQ(Screen(), FString(TEXT("one [two three]|")));
	MoveMouse(15.0f, 5.0f);
	EXPECT_EQ(Screen(), FString(TEXT("|[one two] three")));
	Release();
}

TEST_F(FTextMouse, ShiftAndAClickExtend)
{
	ShowText(FString(TEXT("one two three")));
	Click(4);
	Click(8, 0, Shift());
	EXPECT_EQ(Screen(), FString(TEXT("one [two ]|three")));
	Click(1, 0, Shift());
	EXPECT_EQ(Screen(), FString(TEXT("o|[ne ]two three")));
}

TEST_F(FTextMouse, DraggingBeyondTheEdgeScrolls)
{
	ShowText(FString(TEXT("1\n2\n3\n4\n5\n6")), 200.0f, 60.0f);
	EXPECT_TRUE(Screen().StartsWith(TEXT("1\n2\n3"))) << Screen();
	Press(1.0f, 5.0f);
	MoveMouse(9.0f, 100.0f);
	for (int32 Step = 0; Step < 20; ++Step)
	{
		Frame(0.05f);
	}
	EXPECT_EQ(Screen(), FString(TEXT("[4]\n[5]\n[6]|")));
	Release();
	Frame(0.05f);
	Key(EKeys::C, Control());
	EXPECT_EQ(Desktop->Clipboard, FString(TEXT("1\n2\n3\n4\n5\n6")));
}

TEST_F(FTextMouse, OtherButtonsAreLeftToOthers)
{
	ShowText(FString(TEXT("one")));
	const FPointerEvent Event(FVector2D(5.0, 5.0), EKeys::RightMouseButton);
	EXPECT_FALSE(Application().ProcessMouseButtonDownEvent(Window.ToSharedRef(), Event));
}

TEST_F(FTextMouse, TheCursorIsABeam)
{
	ShowText(Arguments().Text(INVTEXT("one")).IsReadOnly(true));
	MoveMouse(5.0f, 5.0f);
	EXPECT_EQ(Desktop->Cursor, EMouseCursor::TextEditBeam);
}
