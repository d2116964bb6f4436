// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/Printers.h"

#include <gtest/gtest.h>

TEST(StringConvTest, ConvertsBothWaysWithoutLoss)
{
	const FString Text = TEXT("a\u00E4\u20AC\U0001F600");
	const FTCHARToUTF8 Bytes(Text);
	EXPECT_STREQ(Bytes.Get(), "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80");
	EXPECT_EQ(Bytes.Length(), 10);
	EXPECT_TEXT(FUTF8ToTCHAR(Bytes.Get()), Text);
	EXPECT_TEXT(FString(UTF8_TO_TCHAR("gr\xC3\xBC\xC3\x9F")), TEXT("gr\u00FC\u00DF"));
	EXPECT_EQ(FTCHARToUTF8(FStringView()).Length(), 0);
	EXPECT_EQ(FUTF8ToTCHAR(nullptr).Length(), 0);
}

TEST(StringConvTest, ReplacesInvalidBytes)
{
	const TPair<const char*, const TCHAR*> Cases[] = {{"a\x80z", TEXT("a\uFFFDz")}, {"\xE2\x82", TEXT("\uFFFD")},
		{"\xF0\x9F\x98z", TEXT("\uFFFDz")}, {"\xC0\xAF", TEXT("\uFFFD\uFFFD")}, {"\xED\xA0\x80", TEXT("\uFFFD\uFFFD\uFFFD")},
		{"\xFF", TEXT("\uFFFD")}};
	for (const auto& [Bytes, Expected] : Cases)
	{
		EXPECT_TEXT(FUTF8ToTCHAR(Bytes), Expected);
	}
}

TEST(StringConvTest, ReplacesSurrogatesWithoutPair)
{
	const TCHAR High[] = {TEXT('a'), 0xD83D, TEXT('b'), 0};
	const TCHAR Low[] = {0xDE00, 0};
	EXPECT_STREQ(TCHAR_TO_UTF8(High), "a\xEF\xBF\xBD"
									  "b");
	EXPECT_STREQ(TCHAR_TO_UTF8(Low), "\xEF\xBF\xBD");
	// As UTF-16 it stays what it is.
	EXPECT_EQ(FString(High).Len(), 3);
	EXPECT_EQ(FString(High)[1], 0xD83D);
}
