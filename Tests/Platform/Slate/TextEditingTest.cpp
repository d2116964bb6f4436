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
		Press(TEXT("Ctrl+Home"));
		const FString Behind(Before);
		for (int32 Step = 0; Step < 1000 && !Behind.IsEmpty(); ++Step)
		{
			if (Screen().Contains(TEXT("|") + Behind, ESearchCase::CaseSensitive))
			{
				return;
			}
			Press(TEXT("Right"));
		}
		if (Behind.IsEmpty())
		{
			Press(TEXT("Ctrl+End"));
		}
	}
};

struct FKeyCase
{
	const TCHAR* Text;
	const TCHAR* Before;
	/** Keys, and between quotes what is typed. */
	const TCHAR* Keys;
	const TCHAR* Screen;
};

class FCaretKeys : public FTextEditing, public testing::WithParamInterface<FKeyCase>
{
protected:
	void Play(const FString& Keys)
	{
		for (int32 Index = 0; Index < Keys.Len();)
		{
			const bool bTyped = Keys[Index] == TEXT('\'');
			Index += bTyped ? 1 : 0;
			int32 End = Index;
			while (End < Keys.Len() && Keys[End] != (bTyped ? TEXT('\'') : TEXT(' ')))
			{
				++End;
			}
			const FString Token = Keys.Mid(Index, End - Index);
			bTyped ? Type(Token) : Press(Token);
			Index = End + (bTyped ? 2 : 1);
		}
	}
};

TEST_P(FCaretKeys, MoveExtendAndEdit)
{
	Edit(GetParam().Text, GetParam().Before);
	Play(GetParam().Keys);
	EXPECT_EQ(Screen(), FString(GetParam().Screen));
}

INSTANTIATE_TEST_SUITE_P(Characters, FCaretKeys,
	testing::Values(FKeyCase{TEXT("abc"), TEXT("b"), TEXT("Right"), TEXT("ab|c")},
		FKeyCase{TEXT("abc"), TEXT("b"), TEXT("Left"), TEXT("|abc")}, FKeyCase{TEXT("abc"), TEXT("a"), TEXT("Left"), TEXT("|abc")},
		FKeyCase{TEXT("abc"), TEXT(""), TEXT("Right"), TEXT("abc|")}, FKeyCase{TEXT("ab\nc"), TEXT("c"), TEXT("Left"), TEXT("ab|\nc")},
		FKeyCase{TEXT("ab\nc"), TEXT("b"), TEXT("Down"), TEXT("ab\nc|")},
		FKeyCase{TEXT("x" FAMILY "y"), TEXT(FAMILY), TEXT("Right"), TEXT("x" FAMILY "|y")},
		FKeyCase{TEXT("xe\u0301y"), TEXT("y"), TEXT("Left"), TEXT("x|e\u0301y")},
		FKeyCase{TEXT("x\U0001F600y"), TEXT("y"), TEXT("Left"), TEXT("x|\U0001F600y")},
		// In a paragraph that runs from right to left the arrows keep to what the eye sees.
		FKeyCase{TEXT("\u05D0\u05D1\u05D2"), TEXT(""), TEXT("Right"), TEXT("\u05D2|\u05D1\u05D0")}));

INSTANTIATE_TEST_SUITE_P(Words, FCaretKeys,
	testing::Values(FKeyCase{TEXT("Lorem ipsum dolor"), TEXT("rem"), TEXT("Ctrl+Right"), TEXT("Lorem |ipsum dolor")},
		FKeyCase{TEXT("Lorem ipsum dolor"), TEXT("m dolor"), TEXT("Ctrl+Left"), TEXT("Lorem |ipsum dolor")},
		FKeyCase{TEXT("Lorem ipsum"), TEXT("ipsum"), TEXT("Ctrl+Left"), TEXT("|Lorem ipsum")},
		FKeyCase{TEXT("a, b"), TEXT("a"), TEXT("Ctrl+Right"), TEXT("a|, b")},
		FKeyCase{TEXT("a\nb"), TEXT("b"), TEXT("Ctrl+Left"), TEXT("a|\nb")},
		FKeyCase{TEXT("one two"), TEXT("two"), TEXT("Ctrl+Shift+Right"), TEXT("one [two]|")}));

INSTANTIATE_TEST_SUITE_P(Lines, FCaretKeys,
	testing::Values(FKeyCase{TEXT("ab\ncd"), TEXT("d"), TEXT("Home"), TEXT("ab\n|cd")},
		FKeyCase{TEXT("ab\ncd"), TEXT("b"), TEXT("End"), TEXT("ab|\ncd")},
		FKeyCase{TEXT("ab\ncd"), TEXT("d"), TEXT("Ctrl+Home"), TEXT("|ab\ncd")},
		FKeyCase{TEXT("ab\ncd"), TEXT("b"), TEXT("Ctrl+End"), TEXT("ab\ncd|")},
		FKeyCase{TEXT("ab\ncd"), TEXT("d"), TEXT("Up"), TEXT("a|b\ncd")}, FKeyCase{TEXT("ab\ncd"), TEXT("b"), TEXT("Up"), TEXT("|ab\ncd")},
		FKeyCase{TEXT("ab\ncd"), TEXT("d"), TEXT("Down"), TEXT("ab\ncd|")}));

INSTANTIATE_TEST_SUITE_P(Selecting, FCaretKeys,
	testing::Values(FKeyCase{TEXT("abc"), TEXT("b"), TEXT("Shift+Right"), TEXT("a[b]|c")},
		FKeyCase{TEXT("abc"), TEXT("b"), TEXT("Shift+Left"), TEXT("|[a]bc")},
		FKeyCase{TEXT("ab\ncd"), TEXT("b"), TEXT("Shift+Down"), TEXT("a[b]\n[c]|d")},
		FKeyCase{TEXT("abc"), TEXT("b"), TEXT("Shift+End"), TEXT("a[bc]|")},
		FKeyCase{TEXT("abc"), TEXT("c"), TEXT("Ctrl+A"), TEXT("[abc]|")},
		// A selection over two directions is in two pieces.
		FKeyCase{TEXT("ab\u05D0\u05D1cd"), TEXT("\u05D1\u05D0cd"), TEXT("Ctrl+A"), TEXT("[ab\u05D1\u05D0cd]|")}));

INSTANTIATE_TEST_SUITE_P(Columns, FCaretKeys,
	testing::Values(FKeyCase{TEXT("abcdef\nab\nabcdef"), TEXT("ef\nab"), TEXT("Down"), TEXT("abcdef\nab|\nabcdef")},
		FKeyCase{TEXT("abcdef\nab\nabcdef"), TEXT("ef\nab"), TEXT("Down Down"), TEXT("abcdef\nab\nabcd|ef")},
		FKeyCase{TEXT("abcd"), TEXT("b"), TEXT("Shift+Right Shift+Right Left"), TEXT("a|bcd")},
		FKeyCase{TEXT("abcd"), TEXT("b"), TEXT("Shift+Right Shift+Right Right"), TEXT("abc|d")}));

INSTANTIATE_TEST_SUITE_P(Erasing, FCaretKeys,
	testing::Values(FKeyCase{TEXT("xe\u0301" FAMILY "y"), TEXT("y"), TEXT("BackSpace"), TEXT("xe\u0301|y")},
		FKeyCase{TEXT("xe\u0301" FAMILY "y"), TEXT("y"), TEXT("BackSpace BackSpace"), TEXT("x|y")},
		FKeyCase{TEXT("e\u0301" FAMILY "!y"), TEXT(""), TEXT("Home Delete Delete"), TEXT("|!y")},
		FKeyCase{TEXT("one two three"), TEXT("two"), TEXT("Ctrl+Delete"), TEXT("one |three")},
		FKeyCase{TEXT("one two three"), TEXT("two"), TEXT("Ctrl+BackSpace"), TEXT("|two three")},
		FKeyCase{TEXT("ab\ncd"), TEXT("cd"), TEXT("BackSpace"), TEXT("ab|cd")},
		FKeyCase{TEXT("ab\ncd"), TEXT("cd"), TEXT("Left Delete"), TEXT("ab|cd")}));

INSTANTIATE_TEST_SUITE_P(Typing, FCaretKeys,
	testing::Values(FKeyCase{TEXT("xy"), TEXT("y"), TEXT("'\U0001F600!'"), TEXT("x\U0001F600!|y")},
		FKeyCase{TEXT("abcd"), TEXT("cd"), TEXT("Enter"), TEXT("ab\n|cd")},
		FKeyCase{TEXT("one two three"), TEXT("two"), TEXT("Ctrl+Shift+Right '2 '"), TEXT("one 2 |three")}));

INSTANTIATE_TEST_SUITE_P(Undoing, FCaretKeys,
	testing::Values(FKeyCase{TEXT(""), TEXT(""), TEXT("'one two' Ctrl+Z"), TEXT("one |")},
		FKeyCase{TEXT(""), TEXT(""), TEXT("'one two' Ctrl+Z Ctrl+Z"), TEXT("|")},
		FKeyCase{TEXT(""), TEXT(""), TEXT("'one two' Ctrl+Z Ctrl+Z Ctrl+Z Ctrl+Y Ctrl+Shift+Z Ctrl+Y"), TEXT("one two|")},
		FKeyCase{TEXT("one two three"), TEXT("two"), TEXT("Ctrl+Shift+Right Delete Ctrl+Z"), TEXT("one [two ]|three")},
		FKeyCase{TEXT("one two three"), TEXT("one"), TEXT("Delete Delete Delete Ctrl+Z"), TEXT("|one two three")},
		FKeyCase{TEXT("one two three"), TEXT(""), TEXT("BackSpace BackSpace BackSpace Ctrl+Z"), TEXT("one two three|")},
		FKeyCase{TEXT(""), TEXT(""), TEXT("'a' Ctrl+Z 'b' Ctrl+Y"), TEXT("b|")},
		FKeyCase{TEXT(""), TEXT(""), TEXT("'ac' Left 'b' Ctrl+Z"), TEXT("a|c")},
		FKeyCase{TEXT("1\n2"), TEXT(""), TEXT("Ctrl+A Ctrl+C Ctrl+End Ctrl+V 'x' Ctrl+Z Ctrl+Z"), TEXT("1\n2|")},
		FKeyCase{TEXT("1\n2"), TEXT(""), TEXT("Ctrl+A Ctrl+C Ctrl+End Ctrl+V 'x' Ctrl+Z Ctrl+Z Ctrl+Y Ctrl+Y"), TEXT("1\n21\n2x|")}));

INSTANTIATE_TEST_SUITE_P(Clipboard, FCaretKeys,
	testing::Values(
		FKeyCase{TEXT("one two\nthree"), TEXT("two"), TEXT("Ctrl+Shift+End Ctrl+X Ctrl+V Ctrl+V"), TEXT("one two\nthreetwo\nthree|")},
		FKeyCase{TEXT("one"), TEXT(""), TEXT("Shift+Left Ctrl+C Right Ctrl+C Ctrl+X Ctrl+V"), TEXT("onee|")}));

TEST_F(FTextEditing, AtAWrapTheCaretStaysOnTheLineOfTheKey)
{
	ShowText(FString(TEXT("abcdefgh")), 41.0f);
	Focus();
	Press(TEXT("Ctrl+Home"));
	Press(TEXT("End"));
	EXPECT_EQ(Screen(), FString(TEXT("abcd|\nefgh")));
	Press(TEXT("Right"));
	EXPECT_EQ(Screen(), FString(TEXT("abcd\ne|fgh")));
	Press(TEXT("Home"));
	EXPECT_EQ(Screen(), FString(TEXT("abcd\n|efgh")));
}

TEST_F(FTextEditing, CommandsAndControlCharactersAreNotText)
{
	Edit(TEXT(""));
	Application().ProcessKeyCharEvent(GetWindow(), FCharacterEvent(TEXT('a'), FModifierKeysState(false, true, false)));
	Application().ProcessKeyCharEvent(GetWindow(), FCharacterEvent(TEXT('\b')));
	Application().ProcessKeyCharEvent(GetWindow(), FCharacterEvent(0x7F));
	// The third level of many keyboards.
	Application().ProcessKeyCharEvent(GetWindow(), FCharacterEvent(TEXT('@'), FModifierKeysState(false, true, true)));
	EXPECT_EQ(Typed(), FString(TEXT("@")));
}

TEST_F(FTextEditing, PastedTextLosesControlCharactersAndKeepsTabs)
{
	Edit(TEXT(""));
	GetDesktop().Clipboard = FString(TEXT("a\r\nb\rc\u2028d\te\x1B[31m\x7F"));
	Press(TEXT("Ctrl+V"));
	EXPECT_EQ(Typed(), FString(TEXT("a\nb\nc\nd\te[31m")));
}

TEST_F(FTextEditing, AMegabyteIsPastedAndEdited)
{
	Edit(TEXT(""));
	for (int32 Line = 0; Line < 20000; ++Line)
	{
		GetDesktop().Clipboard += TEXT("A line of fifty letters, which stands for a log.\n");
	}
	Press(TEXT("Ctrl+V"));
	Type(TEXT("x"));
	EXPECT_EQ(Typed().Len(), GetDesktop().Clipboard.Len() + 1);
	EXPECT_TRUE(Screen().EndsWith(TEXT("log.\nx|")));
	PressTimes(TEXT("Ctrl+Z"), 2);
	EXPECT_TRUE(Typed().IsEmpty());
}

TEST_F(FTextEditing, AReadOnlyTextIsOnlyRead)
{
	ShowText(Arguments().Text(INVTEXT("one two")).IsReadOnly(true));
	DoubleClickLetter(5);
	Type(TEXT("x"));
	Press(TEXT("BackSpace"));
	Press(TEXT("Ctrl+X"));
	Press(TEXT("Ctrl+V"));
	EXPECT_EQ(Screen(), FString(TEXT("one [two]")));
	Press(TEXT("Ctrl+C"));
	EXPECT_EQ(GetDesktop().Clipboard, FString(TEXT("two")));
	Press(TEXT("Ctrl+A"));
	Press(TEXT("Ctrl+C"));
	EXPECT_EQ(GetDesktop().Clipboard, FString(TEXT("one two")));
}
