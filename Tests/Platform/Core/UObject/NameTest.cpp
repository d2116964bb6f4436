// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/Printers.h"

#include <gtest/gtest.h>

TEST(NameTest, IgnoresCaseAndKeepsTheFirstSpelling)
{
	const FName First = TEXT("VorelAI.SpellingTest");
	const FName Second = "vorelai.SPELLINGTEST";
	EXPECT_EQ(First, Second);
	EXPECT_EQ(GetTypeHash(First), GetTypeHash(Second));
	EXPECT_TEXT(Second.ToString(), TEXT("VorelAI.SpellingTest"));
	EXPECT_TRUE(First == TEXT("VORELAI.spellingtest"));
	EXPECT_NE(First, FName(TEXT("VorelAI.Other")));
}
