// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/Printers.h"

#include <gtest/gtest.h>

TEST(StringTest, ComparesAndSearchesIgnoringCaseUnlessAsked)
{
	const FString Text = TEXT("The AGENT and the agent");
	EXPECT_TRUE(Text == TEXT("the agent AND THE agent"));
	EXPECT_FALSE(Text.Equals(TEXT("the agent and the agent")));
	EXPECT_EQ(GetTypeHash(FString(TEXT("Hello"))), GetTypeHash(FString(TEXT("hELLO"))));
	EXPECT_EQ(FString(TEXT("a")).Compare(TEXT("B"), ESearchCase::IgnoreCase), -1);
	EXPECT_EQ(FString(TEXT("a")).Compare(TEXT("B")), 1);
	EXPECT_TRUE(Text.StartsWith(TEXT("the")));
	EXPECT_FALSE(Text.StartsWith(TEXT("the"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Text.EndsWith(TEXT("AGENT")));
	EXPECT_EQ(Text.Find(TEXT("agent")), 4);
	EXPECT_EQ(Text.Find(TEXT("agent"), ESearchCase::CaseSensitive), 18);
	EXPECT_EQ(Text.Find(TEXT("agent"), ESearchCase::IgnoreCase, ESearchDir::FromEnd), 18);
	EXPECT_EQ(Text.Find(TEXT("agent"), ESearchCase::IgnoreCase, ESearchDir::FromEnd, 18), 4);
	EXPECT_EQ(Text.Find(TEXT("agent"), ESearchCase::IgnoreCase, ESearchDir::FromStart, 5), 18);
	EXPECT_EQ(Text.Find(TEXT("")), INDEX_NONE);
}

TEST(StringTest, ChangesWhatItHolds)
{
	FString Text = TEXT("abc");
	Text += Text;
	EXPECT_TEXT(Text, TEXT("abcabc"));
	EXPECT_TEXT(FString(TEXT("a\\nb\\Nc")).Replace(TEXT("\\n"), TEXT("\n")), TEXT("a\nb\nc"));
	EXPECT_TEXT(FString(TEXT("aXbxc")).Replace(TEXT("x"), TEXT(""), ESearchCase::CaseSensitive), TEXT("aXbc"));
	EXPECT_TEXT(FString(TEXT("aaa")).Replace(TEXT("a"), TEXT("aa")), TEXT("aaaaaa"));
	EXPECT_TEXT(FString(TEXT("abc")).Replace(TEXT(""), TEXT("x")), TEXT("abc"));
	EXPECT_TEXT(FString(TEXT(" \t\r\n a b \u00A0\u2003")).TrimStartAndEnd(), TEXT("a b"));
	EXPECT_TEXT(FString(TEXT("\u00C4bC")).ToLower(), TEXT("\u00E4bc"));
	EXPECT_TEXT(FString(TEXT("\u00E4bC")).ToUpper(), TEXT("\u00C4BC"));
}

TEST(StringTest, IsCutWithinItsLength)
{
	const FString Text = TEXT("0123456789");
	EXPECT_TEXT(Text.Mid(8, 100), TEXT("89"));
	EXPECT_TEXT(Text.Mid(-5, 2) + Text.Mid(100, 1) + Text.Left(-1), TEXT("01"));
	EXPECT_TEXT(Text.Left(100), Text);
	EXPECT_TEXT(Text.Right(100), Text);
}

TEST(StringTest, IsSplitAndJoined)
{
	FString Left;
	FString Right;
	EXPECT_TRUE(FString(TEXT("a=b=c")).Split(TEXT("="), &Left, &Right));
	EXPECT_TEXT(Left + TEXT(" ") + Right, TEXT("a b=c"));
	TArray<FString> Parts;
	EXPECT_EQ(FString(TEXT("a,,b,")).ParseIntoArray(Parts, TEXT(",")), 2);
	EXPECT_EQ(FString(TEXT("a\r\nb\n\nc\rd")).ParseIntoArrayLines(Parts, false), 5);
	EXPECT_TEXT(FString::Join(Parts, TEXT("|")), TEXT("a|b||c|d"));
	EXPECT_TEXT(FString() / TEXT("a/") / TEXT("/b") / TEXT("c"), TEXT("a/b/c"));
}

TEST(StringTest, TurnsIntoBytesAndBack)
{
	const FString Text = TEXT("a\u00E4\u20AC\U0001F600");
	EXPECT_STREQ(TCHAR_TO_UTF8(*Text), "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80");
	EXPECT_TEXT(FUTF8ToTCHAR(TCHAR_TO_UTF8(*Text)), Text);
	EXPECT_EQ(FUTF8ToTCHAR(nullptr).Length(), 0);
	const TPair<const char*, const TCHAR*> InvalidBytes[] = {{"a\x80z", TEXT("a\uFFFDz")}, {"\xE2\x82", TEXT("\uFFFD")},
		{"\xF0\x9F\x98z", TEXT("\uFFFDz")}, {"\xC0\xAF", TEXT("\uFFFD\uFFFD")}, {"\xED\xA0\x80", TEXT("\uFFFD\uFFFD\uFFFD")},
		{"\xFF", TEXT("\uFFFD")}};
	for (const auto& [Bytes, Expected] : InvalidBytes)
	{
		EXPECT_TEXT(FUTF8ToTCHAR(Bytes), Expected);
	}
	const TCHAR LoneSurrogates[] = {TEXT('a'), 0xD83D, 0x20, 0xDE00, 0};
	EXPECT_STREQ(TCHAR_TO_UTF8(LoneSurrogates), "a\xEF\xBF\xBD \xEF\xBF\xBD");
	EXPECT_EQ(FString(LoneSurrogates)[1], 0xD83D) << "as UTF-16 it stays what it is";
}

TEST(NameTest, IgnoresCaseAndKeepsTheFirstSpelling)
{
	const FName First = TEXT("VorelAI.SpellingTest");
	EXPECT_EQ(First, FName("vorelai.SPELLINGTEST"));
	EXPECT_TEXT(FName("vorelai.SPELLINGTEST").ToString(), TEXT("VorelAI.SpellingTest"));
}

TEST(StringFormatTest, PrintsEveryKindOfArgument)
{
	const FString Name = TEXT("w\u00F6rld");
	EXPECT_TEXT(FString::Printf(TEXT("Hello %s, 100%%"), *Name), TEXT("Hello w\u00F6rld, 100%"));
	EXPECT_TEXT(FString::Printf(TEXT("%hs %S"), "narrow", "too"), TEXT("narrow too"));
	EXPECT_TEXT(FString::Printf(TEXT("%d %i %u"), -1, 2, 3u), TEXT("-1 2 3"));
	EXPECT_TEXT(FString::Printf(TEXT("%lld %llu"), int64(-5000000000), uint64(5000000000)), TEXT("-5000000000 5000000000"));
	EXPECT_TEXT(FString::Printf(TEXT("%x %X %o %x"), 255, 255, 8, -1), TEXT("ff FF 10 ffffffff"));
	EXPECT_TEXT(FString::Printf(TEXT("%f %.2f %g"), 1.5f, 2.345, 0.1), TEXT("1.500000 2.35 0.1"));
	EXPECT_TEXT(FString::Printf(TEXT("%c%c"), TEXT('a'), TEXT('\u00E9')), TEXT("a\u00E9"));
	EXPECT_TEXT(FString::Printf(TEXT("%s %s"), TEXT("100%s %n"), static_cast<const TCHAR*>(nullptr)), TEXT("100%s %n (null)"));
	EXPECT_TEXT(FString::Printf(TEXT("[%5d][%-5d][%05d][%+d]"), 42, 42, 42, 42), TEXT("[   42][42   ][00042][+42]"));
	EXPECT_TEXT(FString::Printf(TEXT("[%5s][%-5s][%.2s]"), TEXT("abc"), TEXT("abc"), TEXT("abc")), TEXT("[  abc][abc  ][ab]"));
	EXPECT_TEXT(FString::Printf(TEXT("[%*d][%*d][%.*f]"), 4, 7, -4, 7, 1, 2.25), TEXT("[   7][7   ][2.2]"));
	EXPECT_EQ(FString::Printf(TEXT("%1000s"), TEXT("x")).Len(), 1000);
}

TEST(StringFormatDeathTest, StopsWhereFormatAndArgumentsDiffer)
{
	EXPECT_DEATH(FString::Printf(TEXT("%s")), "more conversions than arguments");
	EXPECT_DEATH(FString::Printf(TEXT("%s"), 1), "needs a string");
	EXPECT_DEATH(FString::Printf(TEXT("%d"), 1.5), "does not fit its argument");
	EXPECT_DEATH(FString::Printf(TEXT("%s"), "narrow"), "is for TCHAR strings");
	EXPECT_DEATH(FString::Printf(TEXT("100%")), "ends inside a conversion");
}
