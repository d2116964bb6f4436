// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/Printers.h"

#include <gtest/gtest.h>

TEST(StringTest, ComparesIgnoringCaseUnlessAsked)
{
	EXPECT_TRUE(FString(TEXT("Hello")) == TEXT("hELLO"));
	EXPECT_TRUE(FString(TEXT("Hello")) == FString(TEXT("HELLO")));
	EXPECT_FALSE(FString(TEXT("Hello")) == TEXT("Hell"));
	EXPECT_FALSE(FString(TEXT("Hello")).Equals(TEXT("hello")));
	EXPECT_TRUE(FString(TEXT("Hello")).Equals(TEXT("hello"), ESearchCase::IgnoreCase));
	EXPECT_EQ(GetTypeHash(FString(TEXT("Hello"))), GetTypeHash(FString(TEXT("hELLO"))));
	EXPECT_EQ(FString(TEXT("a")).Compare(TEXT("B"), ESearchCase::IgnoreCase), -1);
	EXPECT_EQ(FString(TEXT("a")).Compare(TEXT("B")), 1);
	EXPECT_TRUE(FStringView(TEXT("abc")) == TEXTVIEW("ABC"));
}

TEST(StringTest, SearchesIgnoringCaseUnlessAsked)
{
	const FString Text = TEXT("The AGENT and the agent");
	EXPECT_TRUE(Text.Contains(TEXT("Agent")));
	EXPECT_FALSE(Text.Contains(TEXT("Agent"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Text.StartsWith(TEXT("the")));
	EXPECT_FALSE(Text.StartsWith(TEXT("the"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Text.EndsWith(TEXT("AGENT")));
	EXPECT_EQ(Text.Find(TEXT("agent")), 4);
	EXPECT_EQ(Text.Find(TEXT("agent"), ESearchCase::CaseSensitive), 18);
	EXPECT_EQ(Text.Find(TEXT("agent"), ESearchCase::IgnoreCase, ESearchDir::FromEnd), 18);
	EXPECT_EQ(Text.Find(TEXT("agent"), ESearchCase::IgnoreCase, ESearchDir::FromEnd, 18), 4);
	EXPECT_EQ(Text.Find(TEXT("agent"), ESearchCase::IgnoreCase, ESearchDir::FromStart, 5), 18);
	EXPECT_EQ(Text.Find(TEXT("missing")), INDEX_NONE);
	EXPECT_EQ(Text.Find(TEXT("")), INDEX_NONE);
	EXPECT_EQ(FString().Find(TEXT("a")), INDEX_NONE);
}

TEST(StringTest, ReplacesIgnoringCaseUnlessAsked)
{
	EXPECT_TEXT(FString(TEXT("a\\nb\\Nc")).Replace(TEXT("\\n"), TEXT("\n")), TEXT("a\nb\nc"));
	EXPECT_TEXT(FString(TEXT("aXbxc")).Replace(TEXT("x"), TEXT(""), ESearchCase::CaseSensitive), TEXT("aXbc"));
	EXPECT_TEXT(FString(TEXT("aaa")).Replace(TEXT("a"), TEXT("aa")), TEXT("aaaaaa"));
	EXPECT_TEXT(FString(TEXT("abc")).Replace(TEXT(""), TEXT("x")), TEXT("abc"));

	FString Text = TEXT("one__NL__two__NL__");
	EXPECT_EQ(Text.ReplaceInline(TEXT("__NL__"), TEXT("\n")), 2);
	EXPECT_TEXT(Text, TEXT("one\ntwo\n"));
	EXPECT_EQ(Text.ReplaceInline(TEXT("__NL__"), TEXT("\n")), 0);
}

TEST(StringTest, CutsWithinItsLength)
{
	const FString Text = TEXT("0123456789");
	EXPECT_TEXT(Text.Left(3), TEXT("012"));
	EXPECT_TEXT(Text.Right(3), TEXT("789"));
	EXPECT_TEXT(Text.LeftChop(3), TEXT("0123456"));
	EXPECT_TEXT(Text.RightChop(3), TEXT("3456789"));
	EXPECT_TEXT(Text.Mid(3, 4), TEXT("3456"));
	EXPECT_TEXT(Text.Mid(8, 100), TEXT("89"));
	EXPECT_TEXT(Text.Mid(8), TEXT("89"));
	EXPECT_TEXT(Text.Mid(100, 1), TEXT(""));
	EXPECT_TEXT(Text.Left(-1), TEXT(""));
	EXPECT_TEXT(Text.Left(100), Text);
	EXPECT_TEXT(Text.Right(100), Text);
	EXPECT_TEXT(Text.Mid(-5, 2), TEXT("01"));
}

TEST(StringTest, JoinsAndAppends)
{
	FString Text = TEXT("a");
	Text += TEXT("b");
	Text += TEXT('c');
	Text += FString(TEXT("d"));
	Text.AppendChar(TEXT('e')).Append(TEXTVIEW("fg")).AppendInt(-42);
	EXPECT_TEXT(Text, TEXT("abcdefg-42"));
	Text += Text;
	EXPECT_TEXT(Text, TEXT("abcdefg-42abcdefg-42"));
	EXPECT_TEXT(TEXT("x") + FString(TEXT("y")) + TEXT("z") + TEXT('!'), TEXT("xyz!"));
	EXPECT_TEXT(FString::Join({TEXT("a"), TEXT("b"), TEXT("c")}, TEXT(", ")), TEXT("a, b, c"));
	EXPECT_TEXT(FString(TEXT("a/")) / TEXT("/b") / TEXT("c"), TEXT("a/b/c"));
	EXPECT_TEXT(FString() / TEXT("b"), TEXT("b"));
}

TEST(StringTest, InsertsAndRemoves)
{
	FString Text = TEXT("hello");
	Text.InsertAt(0, TEXT(">> "));
	Text.InsertAt(Text.Len(), TEXT("!"));
	EXPECT_TEXT(Text, TEXT(">> hello!"));
	Text.RemoveAt(0, 3);
	EXPECT_TRUE(Text.RemoveFromEnd(TEXT("!")));
	EXPECT_FALSE(Text.RemoveFromEnd(TEXT("!")));
	EXPECT_TRUE(Text.RemoveFromStart(TEXT("HE")));
	EXPECT_TEXT(Text, TEXT("llo"));
}

TEST(StringTest, TrimsEveryKindOfBlank)
{
	EXPECT_TEXT(FString(TEXT(" \t\r\n a b \n")).TrimStartAndEnd(), TEXT("a b"));
	EXPECT_TEXT(FString(TEXT(" a ")).TrimStart(), TEXT("a "));
	EXPECT_TEXT(FString(TEXT(" a\u00A0\u2003")).TrimEnd(), TEXT(" a"));
	EXPECT_TEXT(FString(TEXT(" \n ")).TrimEnd(), TEXT(""));
}

TEST(StringTest, SplitsIntoParts)
{
	FString Left;
	FString Right;
	EXPECT_TRUE(FString(TEXT("a=b=c")).Split(TEXT("="), &Left, &Right));
	EXPECT_TEXT(Left, TEXT("a"));
	EXPECT_TEXT(Right, TEXT("b=c"));
	EXPECT_TRUE(Right.Split(TEXT("="), nullptr, &Right));
	EXPECT_TEXT(Right, TEXT("c"));
	EXPECT_FALSE(Right.Split(TEXT("="), &Left, &Right));
	EXPECT_TEXT(Left, TEXT("a"));

	TArray<FString> Parts;
	EXPECT_EQ(FString(TEXT("a,,b,")).ParseIntoArray(Parts, TEXT(",")), 2);
	EXPECT_EQ(FString(TEXT("a,,b,")).ParseIntoArray(Parts, TEXT(","), false), 4);
	EXPECT_TEXT(FString::Join(Parts, TEXT("|")), TEXT("a||b|"));
	EXPECT_EQ(FString(TEXT("a\r\nb\n\nc\rd")).ParseIntoArrayLines(Parts, false), 5);
	EXPECT_TEXT(FString::Join(Parts, TEXT("|")), TEXT("a|b||c|d"));
}

TEST(StringTest, ChangesLetterCaseBeyondAscii)
{
	EXPECT_TEXT(FString(TEXT("\u00C4bC")).ToLower(), TEXT("\u00E4bc"));
	EXPECT_TEXT(FString(TEXT("\u00E4bC")).ToUpper(), TEXT("\u00C4BC"));
}

TEST(StringTest, KeepsLargeTextsWhole)
{
	FString Text;
	for (int32 Index = 0; Index < 100000; ++Index)
	{
		Text += TEXT("0123456789");
	}
	EXPECT_EQ(Text.Len(), 1000000);
	const FString Copy = Text;
	EXPECT_TRUE(Copy.Equals(Text));
	EXPECT_TEXT(Text.Mid(999995, 100), TEXT("56789"));
	EXPECT_EQ(Text.Replace(TEXT("9"), TEXT("")).Len(), 900000);
}

TEST(StringDeathTest, StopsAtAnIndexOutside)
{
	const FString Text = TEXT("abc");
	EXPECT_DEATH(Text[3], "String index out of bounds: Index 3 from a string with a length of 3");
	EXPECT_DEATH(FString(TEXT("abc")).RemoveAt(1, 3), "Assertion failed");
}
