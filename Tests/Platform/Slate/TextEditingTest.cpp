// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TextDriver.h"

/** The family of four is one character of 7 UTF-16 units; the screen shows it as one letter. */
#define FAMILY "\U0001F468\u200D\U0001F469\u200D\U0001F467"

class FTextEditing : public FTextTest
{
protected:
	/** Shows a text with the caret before the first `Before`, the way a user gets it there; at its end without. */
	void Edit(const char* Source, const char* Before = "")
	{
		ShowText(Source);
		Focus();
		Press(*Before == 0 ? TEXT("Ctrl+End") : TEXT("Ctrl+Home"));
		const FString Wanted = TEXT("|") + FString(Before);
		for (int32 Step = 0; Step < 100 && !Screen().Contains(Wanted, ESearchCase::CaseSensitive); ++Step)
		{
			Press(TEXT("Right"));
		}
	}
};

TEST_F(FTextEditing, KeysMoveExtendAndEdit)
{
	const struct
	{
		const char* Text;
		const char* Before;
		const char* Keys;
		const char* Screen;
	} Cases[] = {// Characters; where a paragraph runs from right to left the arrows keep to what the eye sees.
		{"abc", "b", "Right", "ab|c"}, {"abc", "b", "Left Left", "|abc"}, {"abc", "", "Right", "abc|"}, {"ab\nc", "c", "Left", "ab|\nc"},
		{"x" FAMILY "y", FAMILY, "Right", "x" FAMILY "|y"}, {"xe\u0301y", "y", "Left", "x|e\u0301y"},
		{"x\U0001F600y", "y", "Left", "x|\U0001F600y"}, {"\u05D0\u05D1\u05D2", "", "Right", "\u05D2|\u05D1\u05D0"},
		// Words.
		{"Lorem ipsum dolor", "rem", "Ctrl+Right", "Lorem |ipsum dolor"},
		{"Lorem ipsum dolor", "m dolor", "Ctrl+Left", "Lorem |ipsum dolor"}, {"Lorem ipsum", "ipsum", "Ctrl+Left", "|Lorem ipsum"},
		{"a, b", "a", "Ctrl+Right", "a|, b"}, {"a\nb", "b", "Ctrl+Left", "a|\nb"},
		// Lines, and the column that is kept over shorter ones.
		{"ab\ncd", "d", "Home", "ab\n|cd"}, {"ab\ncd", "b", "End", "ab|\ncd"}, {"ab\ncd", "d", "Ctrl+Home", "|ab\ncd"},
		{"ab\ncd", "b", "Ctrl+End", "ab\ncd|"}, {"ab\ncd", "d", "Up", "a|b\ncd"}, {"ab\ncd", "b", "Up", "|ab\ncd"},
		{"ab\ncd", "d", "Down", "ab\ncd|"}, {"abcdef\nab\nabcdef", "ef\nab", "Down", "abcdef\nab|\nabcdef"},
		{"abcdef\nab\nabcdef", "ef\nab", "Down Down", "abcdef\nab\nabcd|ef"},
		// Selecting; a selection over two directions is in two pieces.
		{"abc", "b", "Shift+Right", "a[b]|c"}, {"abc", "b", "Shift+Left", "|[a]bc"}, {"ab\ncd", "b", "Shift+Down", "a[b]\n[c]|d"},
		{"abc", "b", "Shift+End", "a[bc]|"}, {"one two", "two", "Ctrl+Shift+Right", "one [two]|"},
		{"ab\u05D0\u05D1cd", "\u05D1\u05D0cd", "Ctrl+A", "[ab\u05D1\u05D0cd]|"}, {"abcd", "b", "Shift+Right Shift+Right Left", "a|bcd"},
		{"abcd", "b", "Shift+Right Shift+Right Right", "abc|d"},
		// Erasing and typing.
		{"xe\u0301" FAMILY "y", "y", "BackSpace", "xe\u0301|y"}, {"xe\u0301" FAMILY "y", "y", "BackSpace BackSpace", "x|y"},
		{"e\u0301" FAMILY "!y", "", "Home Delete Delete", "|!y"}, {"one two three", "two", "Ctrl+Delete", "one |three"},
		{"one two three", "two", "Ctrl+BackSpace", "|two three"}, {"ab\ncd", "cd", "BackSpace", "ab|cd"},
		{"ab\ncd", "cd", "Left Delete", "ab|cd"}, {"xy", "y", "'\U0001F600!'", "x\U0001F600!|y"}, {"abcd", "cd", "Enter", "ab\n|cd"},
		{"one two three", "two", "Ctrl+Shift+Right '2 '", "one 2 |three"},
		// Undoing.
		{"", "", "'one two' Ctrl+Z", "one |"}, {"", "", "'one two' Ctrl+Z Ctrl+Z", "|"},
		{"", "", "'one two' Ctrl+Z Ctrl+Z Ctrl+Z Ctrl+Y Ctrl+Shift+Z Ctrl+Y", "one two|"},
		{"one two three", "two", "Ctrl+Shift+Right Delete Ctrl+Z", "one [two ]|three"},
		{"one two three", "one", "Delete Delete Delete Ctrl+Z", "|one two three"},
		{"one two three", "", "BackSpace BackSpace BackSpace Ctrl+Z", "one two three|"}, {"", "", "'a' Ctrl+Z 'b' Ctrl+Y", "b|"},
		{"", "", "'ac' Left 'b' Ctrl+Z", "a|c"}, {"1\n2", "", "Ctrl+A Ctrl+C Ctrl+End Ctrl+V 'x' Ctrl+Z Ctrl+Z", "1\n2|"},
		{"1\n2", "", "Ctrl+A Ctrl+C Ctrl+End Ctrl+V 'x' Ctrl+Z Ctrl+Z Ctrl+Y Ctrl+Y", "1\n21\n2x|"},
		// The clipboard.
		{"one two\nthree", "two", "Ctrl+Shift+End Ctrl+X Ctrl+V Ctrl+V", "one two\nthreetwo\nthree|"},
		{"one", "", "Shift+Left Ctrl+C Right Ctrl+C Ctrl+X Ctrl+V", "onee|"}};
	for (const auto& Case : Cases)
	{
		Edit(Case.Text, Case.Before);
		Play(FString(Case.Keys));
		EXPECT_TEXT(Screen(), FString(Case.Screen)) << Case.Text << ": " << Case.Keys;
	}
}

TEST_F(FTextEditing, AtAWrapTheCaretStaysOnTheLineOfTheKey)
{
	ShowText("abcdefgh", 41.0f);
	Focus();
	Play(TEXT("Ctrl+Home End"));
	EXPECT_TEXT(Screen(), TEXT("abcd|\nefgh"));
	Play(TEXT("Right"));
	EXPECT_TEXT(Screen(), TEXT("abcd\ne|fgh"));
	Play(TEXT("Home"));
	EXPECT_TEXT(Screen(), TEXT("abcd\n|efgh"));
}

TEST_F(FTextEditing, CommandsAndControlCharactersAreNotText)
{
	Edit("");
	const FModifierKeysState Control(false, true, false);
	// The third level of many keyboards.
	const FModifierKeysState AltGr(false, true, true);
	for (const FCharacterEvent& Event :
		{FCharacterEvent(TEXT('a'), Control), FCharacterEvent(TEXT('\b')), FCharacterEvent(0x7F), FCharacterEvent(TEXT('@'), AltGr)})
	{
		Application().ProcessKeyCharEvent(GetWindow(), Event);
	}
	EXPECT_TEXT(Typed(), TEXT("@"));
	SetClipboard(TEXT("a\r\nb\rc\u2028d\te\x1B[31m\x7F"));
	Press(TEXT("Ctrl+V"));
	EXPECT_TEXT(Typed(), TEXT("@a\nb\nc\nd\te[31m")) << "what is pasted keeps tabs";
}

TEST_F(FTextEditing, AMegabyteIsPastedAndEdited)
{
	Edit("");
	FString Megabyte;
	for (int32 Line = 0; Line < 20000; ++Line)
	{
		Megabyte += TEXT("A line of fifty letters, which stands for a log.\n");
	}
	SetClipboard(Megabyte);
	Play(TEXT("Ctrl+V 'x'"));
	EXPECT_EQ(Typed().Len(), Megabyte.Len() + 1);
	EXPECT_TRUE(Screen().EndsWith(TEXT("log.\nx|")));
	Play(TEXT("Ctrl+Z Ctrl+Z"));
	EXPECT_TRUE(Typed().IsEmpty());
}

TEST_F(FTextEditing, AReadOnlyTextIsOnlyRead)
{
	ShowText(ReadOnly(TEXT("one two")));
	DoubleClickLetter(5);
	Play(TEXT("'x' BackSpace Ctrl+X Ctrl+V Ctrl+C"));
	EXPECT_TEXT(Screen(), TEXT("one [two]"));
	EXPECT_TEXT(GetClipboard(), TEXT("two"));
}
