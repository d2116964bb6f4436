// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/Printers.h"

#include <gtest/gtest.h>

TEST(StringTest, ComparesIgnoringCaseUnlessAsked)
{
	EXPECT_TRUE(FString(TEXT("Hello")) == TEXT("hELLO"));
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
}

TEST(StringTest, CutsWithinItsLength)
{
	const FString Text = TEXT("0123456789");
	EXPECT_TEXT(Text.Mid(8, 100), TEXT("89"));
	EXPECT_TEXT(Text.Mid(100, 1), TEXT(""));
	EXPECT_TEXT(Text.Left(-1), TEXT(""));
	EXPECT_TEXT(Text.Left(100), Text);
	EXPECT_TEXT(Text.Right(100), Text);
	EXPECT_TEXT(Text.Mid(-5, 2), TEXT("01"));
}

TEST(StringTest, AppendsItselfAndJoinsPaths)
{
	FString Text = TEXT("abc");
	Text += Text;
	EXPECT_TEXT(Text, TEXT("abcabc"));
	EXPECT_TEXT(FString(TEXT("a/")) / TEXT("/b") / TEXT("c"), TEXT("a/b/c"));
	EXPECT_TEXT(FString() / TEXT("b"), TEXT("b"));
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

TEST(StringDeathTest, StopsAtAnIndexOutside)
{
	const FString Text = TEXT("abc");
	EXPECT_DEATH(Text[3], "String index out of bounds: Index 3 from a string with a length of 3");
	EXPECT_DEATH(FString(TEXT("abc")).RemoveAt(1, 3), "Assertion failed");
}
