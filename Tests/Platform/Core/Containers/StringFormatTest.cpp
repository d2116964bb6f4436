// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/Printers.h"

#include <gtest/gtest.h>

TEST(StringFormatTest, PrintsEveryKindOfArgument)
{
	const FString Name = TEXT("w\u00F6rld");
	EXPECT_TEXT(FString::Printf(TEXT("plain")), TEXT("plain"));
	EXPECT_TEXT(FString::Printf(TEXT("Hello %s, 100%%"), *Name), TEXT("Hello w\u00F6rld, 100%"));
	EXPECT_TEXT(FString::Printf(TEXT("%hs %S"), "narrow", "too"), TEXT("narrow too"));
	EXPECT_TEXT(FString::Printf(TEXT("%d %i %u"), -1, 2, 3u), TEXT("-1 2 3"));
	EXPECT_TEXT(FString::Printf(TEXT("%lld %llu"), int64(-5000000000), uint64(5000000000)), TEXT("-5000000000 5000000000"));
	EXPECT_TEXT(FString::Printf(TEXT("%x %X %o"), 255, 255, 8), TEXT("ff FF 10"));
	EXPECT_TEXT(FString::Printf(TEXT("%x"), -1), TEXT("ffffffff"));
	EXPECT_TEXT(FString::Printf(TEXT("%f %.2f %g"), 1.5f, 2.345, 0.1), TEXT("1.500000 2.35 0.1"));
	EXPECT_TEXT(FString::Printf(TEXT("%c%c"), TEXT('a'), TEXT('\u00E9')), TEXT("a\u00E9"));
	EXPECT_TEXT(FString::Printf(TEXT("%s"), TEXT("100%s %d %n")), TEXT("100%s %d %n"));
	EXPECT_TEXT(FString::Printf(TEXT("%s"), static_cast<const TCHAR*>(nullptr)), TEXT("(null)"));
}

TEST(StringFormatTest, HonoursWidthAndPrecision)
{
	EXPECT_TEXT(FString::Printf(TEXT("[%5d][%-5d][%05d][%+d]"), 42, 42, 42, 42), TEXT("[   42][42   ][00042][+42]"));
	EXPECT_TEXT(FString::Printf(TEXT("[%5s][%-5s][%.2s]"), TEXT("abc"), TEXT("abc"), TEXT("abc")), TEXT("[  abc][abc  ][ab]"));
	EXPECT_TEXT(FString::Printf(TEXT("[%*d][%.*f]"), 4, 7, 1, 2.25), TEXT("[   7][2.2]"));
	EXPECT_TEXT(FString::Printf(TEXT("[%*d]"), -4, 7), TEXT("[7   ]"));
	EXPECT_TEXT(FString::Printf(TEXT("[%#x][%.3d]"), 255, 7), TEXT("[0xff][007]"));
	EXPECT_EQ(FString::Printf(TEXT("%1000s"), TEXT("x")).Len(), 1000);
	EXPECT_EQ(FString::Printf(TEXT("%1000d"), 1).Len(), 512);
}

TEST(StringFormatDeathTest, StopsWhereFormatAndArgumentsDiffer)
{
	EXPECT_DEATH(FString::Printf(TEXT("%s")), "more conversions than arguments");
	EXPECT_DEATH(FString::Printf(TEXT("%s"), 1), "needs a string");
	EXPECT_DEATH(FString::Printf(TEXT("%d"), TEXT("x")), "does not fit its argument");
	EXPECT_DEATH(FString::Printf(TEXT("%d"), 1.5), "does not fit its argument");
	EXPECT_DEATH(FString::Printf(TEXT("%s"), "narrow"), "is for TCHAR strings");
	EXPECT_DEATH(FString::Printf(TEXT("100%")), "ends inside a conversion");
}
