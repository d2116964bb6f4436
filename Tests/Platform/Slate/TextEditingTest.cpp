// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TextDriver.h"

#include "Widgets/Layout/SBox.h"

/** The family of four is one character of 7 UTF-16 units; the screen shows it as one letter. */
#define FAMILY "\U0001F468\u200D\U0001F469\u200D\U0001F467"

class FTextEditing : public FTextTest
{
protected:
	/** Shows a text with the caret before the first `Before`, the way a user gets it there. */
	void Edit(const TCHAR* Source, const TCHAR* Before = TEXT(""))
	{
		ShowText(FString(Source));
		Focus();
		Key(EKeys::Home, Control());
		const FString Behind(Before);
		for (int32 Step = 0; Step < 1000 && !Behind.IsEmpty(); ++Step)
		{
			if (Screen().Contains(TEXT("|") + Behind, ESearchCase::CaseSensitive))
			{
				return;
			}
			Key(EKeys::Right);
		}
		if (Behind.IsEmpty())
		{
			Key(EKeys::End, Control());
		}
	}
};

struct FKeyCase
{
	const TCHAR* Text;
	const TCHAR* Before;
	const FKey& Key;
	FModifierKeysState Modifiers;
	const TCHAR* Screen;
};

class FCaretKeys : public FTextEditing, public testing::WithParamInterface<FKeyCase>
{
};

TEST_P(FCaretKeys, MoveOrExtend)
{
	Edit(GetParam().Text, GetParam().Before);
	Key(GetParam().Key, GetParam().Modifiers);
	EXPECT_EQ(Screen(), FString(GetParam().Screen));
}

const FModifierKeysState Plain;
const FModifierKeysState WithShift(true, false, false);
const FModifierKeysState WithControl(false, true, false);
const FModifierKeysState WithBoth(true, true, false);

INSTANTIATE_TEST_SUITE_P(Characters, FCaretKeys,
	testing::Values(FKeyCase{TEXT("abc"), TEXT("b"), EKeys::Right, Plain, TEXT("ab|c")},
		FKeyCase{TEXT("abc"), TEXT("b"), EKeys::Left, Plain, TEXT("|abc")},
		FKeyCase{TEXT("abc"), TEXT("a"), EKeys::Left, Plain, TEXT("|abc")},
		FKeyCase{TEXT("abc"), TEXT(""), EKeys::Right, Plain, TEXT("abc|")},
		FKeyCase{TEXT("ab\nc"), TEXT("c"), EKeys::Left, Plain, TEXT("ab|\nc")},
		FKeyCase{TEXT("ab\nc"), TEXT("b"), EKeys::Down, Plain, TEXT("ab\nc|")},
		FKeyCase{TEXT("x" FAMILY "y"), TEXT(FAMILY), EKeys::Right, Plain, TEXT("x" FAMILY "|y")},
		FKeyCase{TEXT("xe\u0301y"), TEXT("y"), EKeys::Left, Plain, TEXT("x|e\u0301y")},
		FKeyCase{TEXT("x\U0001F600y"), TEXT("y"), EKeys::Left, Plain, TEXT("x|\U0001F600y")},
		// In a paragraph that runs from right to left the arrows keep to what the eye sees.
		FKeyCase{TEXT("\u05D0\u05D1\u05D2"), TEXT(""), EKeys::Right, Plain, TEXT("\u05D2|\u05D1\u05D0")}));

INSTANTIATE_TEST_SUITE_P(Words, FCaretKeys,
	testing::Values(FKeyCase{TEXT("Lorem ipsum dolor"), TEXT("rem"), EKeys::Right, WithControl, TEXT("Lorem |ipsum dolor")},
		FKeyCase{TEXT("Lorem ipsum dolor"), TEXT("m dolor"), EKeys::Left, WithControl, TEXT("Lorem |ipsum dolor")},
		FKeyCase{TEXT("Lorem ipsum"), TEXT("ipsum"), EKeys::Left, WithControl, TEXT("|Lorem ipsum")},
		FKeyCase{TEXT("a, b"), TEXT("a"), EKeys::Right, WithControl, TEXT("a|, b")},
		FKeyCase{TEXT("a\nb"), TEXT("b"), EKeys::Left, WithControl, TEXT("a|\nb")},
		FKeyCase{TEXT("one two"), TEXT("two"), EKeys::Right, WithBoth, TEXT("one [two]|")}));

INSTANTIATE_TEST_SUITE_P(Lines, FCaretKeys,
	testing::Values(FKeyCase{TEXT("ab\ncd"), TEXT("d"), EKeys::Home, Plain, TEXT("ab\n|cd")},
		FKeyCase{TEXT("ab\ncd"), TEXT("b"), EKeys::End, Plain, TEXT("ab|\ncd")},
		FKeyCase{TEXT("ab\ncd"), TEXT("d"), EKeys::Home, WithControl, TEXT("|ab\ncd")},
		FKeyCase{TEXT("ab\ncd"), TEXT("b"), EKeys::End, WithControl, TEXT("ab\ncd|")},
		FKeyCase{TEXT("ab\ncd"), TEXT("d"), EKeys::Up, Plain, TEXT("a|b\ncd")},
		FKeyCase{TEXT("ab\ncd"), TEXT("b"), EKeys::Up, Plain, TEXT("|ab\ncd")},
		FKeyCase{TEXT("ab\ncd"), TEXT("d"), EKeys::Down, Plain, TEXT("ab\ncd|")}));

INSTANTIATE_TEST_SUITE_P(Selecting, FCaretKeys,
	testing::Values(FKeyCase{TEXT("abc"), TEXT("b"), EKeys::Right, WithShift, TEXT("a[b]|c")},
		FKeyCase{TEXT("abc"), TEXT("b"), EKeys::Left, WithShift, TEXT("|[a]bc")},
		FKeyCase{TEXT("ab\ncd"), TEXT("b"), EKeys::Down, WithShift, TEXT("a[b]\n[c]|d")},
		FKeyCase{TEXT("abc"), TEXT("b"), EKeys::End, WithShift, TEXT("a[bc]|")},
		FKeyCase{TEXT("abc"), TEXT("c"), EKeys::A, WithControl, TEXT("[abc]|")},
		// A selection over two directions is in two pieces.
		FKeyCase{TEXT("ab\u05D0\u05D1cd"), TEXT("\u05D1\u05D0cd"), EKeys::A, WithControl, TEXT("[ab\u05D1\u05D0cd]|")}));

TEST_F(FTextEditing, UpAndDownKeepTheColumnOverShortLines)
{
	Edit(TEXT("abcdef\nab\nabcdef"), TEXT("ef\n"));
	Key(EKeys::Home, Control());
	Keys(EKeys::Right, 4);
	Key(EKeys::Down);
	EXPECT_EQ(Screen(), FString(TEXT("abcdef\nab|\nabcdef")));
	Key(EKeys::Down);
	EXPECT_EQ(Screen(), FString(TEXT("abcdef\nab\nabcd|ef")));
}

TEST_F(FTextEditing, AtAWrapTheCaretStaysOnTheLineOfTheKey)
{
	ShowText(FString(TEXT("abcdefgh")), 41.0f);
	Focus();
	Key(EKeys::Home, Control());
	Key(EKeys::End);
	EXPECT_EQ(Screen(), FString(TEXT("abcd|\nefgh")));
	Key(EKeys::Right);
	EXPECT_EQ(Screen(), FString(TEXT("abcd\ne|fgh")));
	Key(EKeys::Home);
	EXPECT_EQ(Screen(), FString(TEXT("abcd\n|efgh")));
}

TEST_F(FTextEditing, AnArrowEndsASelectionAtItsEdge)
{
	Edit(TEXT("abcd"), TEXT("b"));
	Keys(EKeys::Right, 2, Shift());
	Key(EKeys::Left);
	EXPECT_EQ(Screen(), FString(TEXT("a|bcd")));
	Keys(EKeys::Right, 2, Shift());
	Key(EKeys::Right);
	EXPECT_EQ(Screen(), FString(TEXT("abc|d")));
}

TEST_F(FTextEditing, TypingAndErasingGoByCharacters)
{
	Edit(TEXT("xe\u0301" FAMILY "y"), TEXT("y"));
	Key(EKeys::BackSpace);
	EXPECT_EQ(Typed(), FString(TEXT("xe\u0301y")));
	Key(EKeys::BackSpace);
	EXPECT_EQ(Typed(), FString(TEXT("xy")));
	Type(TEXT("\U0001F600!"));
	EXPECT_EQ(Typed(), FString(TEXT("x\U0001F600!y")));
	Key(EKeys::Home);
	Key(EKeys::Delete);
	Key(EKeys::Delete);
	EXPECT_EQ(Screen(), FString(TEXT("|!y")));
}

TEST_F(FTextEditing, ControlErasesWords)
{
	Edit(TEXT("one two three"), TEXT("two"));
	Key(EKeys::Delete, Control());
	EXPECT_EQ(Screen(), FString(TEXT("one |three")));
	Key(EKeys::BackSpace, Control());
	EXPECT_EQ(Screen(), FString(TEXT("|three")));
}

TEST_F(FTextEditing, ErasingALineEndJoinsLines)
{
	Edit(TEXT("ab\ncd"), TEXT("cd"));
	Key(EKeys::BackSpace);
	EXPECT_EQ(Screen(), FString(TEXT("ab|cd")));
	Key(EKeys::Enter);
	EXPECT_EQ(Screen(), FString(TEXT("ab\n|cd")));
	Key(EKeys::Left);
	Key(EKeys::Delete);
	EXPECT_EQ(Typed(), FString(TEXT("abcd")));
}

TEST_F(FTextEditing, TypingReplacesWhatIsSelected)
{
	Edit(TEXT("one two three"), TEXT("two"));
	Key(EKeys::Right, ControlShift());
	Type(TEXT("2 "));
	EXPECT_EQ(Screen(), FString(TEXT("one 2 |three")));
}

TEST_F(FTextEditing, CommandsAndControlCharactersAreNotText)
{
	Edit(TEXT(""));
	Application().ProcessKeyCharEvent(Window.ToSharedRef(), FCharacterEvent(TEXT('a'), Control()));
	Application().ProcessKeyCharEvent(Window.ToSharedRef(), FCharacterEvent(TEXT('\b')));
	Application().ProcessKeyCharEvent(Window.ToSharedRef(), FCharacterEvent(0x7F));
	// The third level of many keyboards.
	Application().ProcessKeyCharEvent(Window.ToSharedRef(), FCharacterEvent(TEXT('@'), FModifierKeysState(false, true, true)));
	EXPECT_EQ(Typed(), FString(TEXT("@")));
}

TEST_F(FTextEditing, UndoTakesBackWordsAndGivesThemBack)
{
	Edit(TEXT(""));
	Type(TEXT("one two"));
	Key(EKeys::Z, Control());
	EXPECT_EQ(Screen(), FString(TEXT("one |")));
	Key(EKeys::Z, Control());
	EXPECT_EQ(Screen(), FString(TEXT("|")));
	Key(EKeys::Z, Control());
	Key(EKeys::Y, Control());
	Key(EKeys::Z, ControlShift());
	EXPECT_EQ(Screen(), FString(TEXT("one two|")));
	Key(EKeys::Y, Control());
	EXPECT_EQ(Typed(), FString(TEXT("one two")));
}

TEST_F(FTextEditing, UndoRestoresCaretAndSelection)
{
	Edit(TEXT("one two three"), TEXT("two"));
	Key(EKeys::Right, ControlShift());
	Key(EKeys::Delete);
	EXPECT_EQ(Screen(), FString(TEXT("one |three")));
	Key(EKeys::Z, Control());
	EXPECT_EQ(Screen(), FString(TEXT("one [two ]|three")));
	Key(EKeys::Home);
	Keys(EKeys::Delete, 3);
	Key(EKeys::Z, Control());
	EXPECT_EQ(Screen(), FString(TEXT("|one two three")));
	Key(EKeys::End);
	Keys(EKeys::BackSpace, 3);
	Key(EKeys::Z, Control());
	EXPECT_EQ(Screen(), FString(TEXT("one two three|")));
}

TEST_F(FTextEditing, ANewEditEndsWhatCouldBeRedone)
{
	Edit(TEXT(""));
	Type(TEXT("a"));
	Key(EKeys::Z, Control());
	Type(TEXT("b"));
	Key(EKeys::Y, Control());
	EXPECT_EQ(Typed(), FString(TEXT("b")));
}

TEST_F(FTextEditing, MovingTheCaretEndsAStepOfUndo)
{
	Edit(TEXT(""));
	Type(TEXT("ac"));
	Key(EKeys::Left);
	Type(TEXT("b"));
	Key(EKeys::Z, Control());
	EXPECT_EQ(Screen(), FString(TEXT("a|c")));
}

TEST_F(FTextEditing, UndoWorksAcrossLines)
{
	Edit(TEXT("a"));
	Desktop->Clipboard = TEXT("1\n2\n3");
	Key(EKeys::V, Control());
	Type(TEXT("x"));
	EXPECT_EQ(Screen(), FString(TEXT("a1\n2\n3x|")));
	Keys(EKeys::Z, 2, Control());
	EXPECT_EQ(Screen(), FString(TEXT("a|")));
	Keys(EKeys::Y, 2, Control());
	EXPECT_EQ(Screen(), FString(TEXT("a1\n2\n3x|")));
}

TEST_F(FTextEditing, TheClipboardTakesAndGivesText)
{
	Edit(TEXT("one two\nthree"), TEXT("two"));
	Key(EKeys::End, ControlShift());
	Key(EKeys::C, Control());
	EXPECT_EQ(Desktop->Clipboard, FString(TEXT("two\nthree")));
	Key(EKeys::X, Control());
	EXPECT_EQ(Screen(), FString(TEXT("one |")));
	Keys(EKeys::V, 2, Control());
	EXPECT_EQ(Screen(), FString(TEXT("one two\nthreetwo\nthree|")));
}

TEST_F(FTextEditing, CopyingNothingLeavesTheClipboardAlone)
{
	Edit(TEXT("one"));
	Desktop->Clipboard = TEXT("kept");
	Key(EKeys::C, Control());
	Key(EKeys::X, Control());
	EXPECT_EQ(Desktop->Clipboard, FString(TEXT("kept")));
	EXPECT_EQ(Typed(), FString(TEXT("one")));
}

TEST_F(FTextEditing, PastedTextLosesControlCharactersAndKeepsTabs)
{
	Edit(TEXT(""));
	Desktop->Clipboard = FString(TEXT("a\r\nb\rc\u2028d\te\x1B[31m\x7F"));
	Key(EKeys::V, Control());
	EXPECT_EQ(Typed(), FString(TEXT("a\nb\nc\nd\te[31m")));
}

TEST_F(FTextEditing, AMegabyteIsPastedAndEdited)
{
	Edit(TEXT(""));
	for (int32 Line = 0; Line < 20000; ++Line)
	{
		Desktop->Clipboard += TEXT("A line of fifty letters, which stands for a log.\n");
	}
	Key(EKeys::V, Control());
	Type(TEXT("x"));
	EXPECT_EQ(Typed().Len(), Desktop->Clipboard.Len() + 1);
	EXPECT_TRUE(Screen().EndsWith(TEXT("log.\nx|")));
	Keys(EKeys::Z, 2, Control());
	EXPECT_TRUE(Typed().IsEmpty());
}

TEST_F(FTextEditing, AReadOnlyTextIsOnlyRead)
{
	ShowText(Arguments().Text(INVTEXT("one two")).IsReadOnly(true));
	DoubleClick(5);
	Type(TEXT("x"));
	Key(EKeys::BackSpace);
	Key(EKeys::X, Control());
	Key(EKeys::V, Control());
	EXPECT_EQ(Screen(), FString(TEXT("one [two]")));
	Key(EKeys::C, Control());
	EXPECT_EQ(Desktop->Clipboard, FString(TEXT("two")));
	Key(EKeys::A, Control());
	Key(EKeys::C, Control());
	EXPECT_EQ(Desktop->Clipboard, FString(TEXT("one two")));
}
