// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/LogCapture.h"
#include "Support/Printers.h"

#include <gtest/gtest.h>

DEFINE_LOG_CATEGORY_STATIC(LogTest, Log, All);
DEFINE_LOG_CATEGORY_STATIC(LogQuiet, Warning, Error);
DEFINE_LOG_CATEGORY_STATIC(LogChatty, Verbose, All);

TEST(LogTest, GoesToStandardErrorAndToEveryDevice)
{
	const FLogCapture First;
	const FLogCapture Second;
	testing::internal::CaptureStderr();
	UE_LOG(LogTest, Warning, TEXT("Count %d of %s"), 3, TEXT("\u00E4"));
	UE_LOG(LogTest, Log, TEXT("traced"));
	UE_LOG(LogTest, Error, TEXT("failed"));
	EXPECT_EQ(testing::internal::GetCapturedStderr(), "LogTest: Warning: Count 3 of \xC3\xA4\nLogTest: traced\nLogTest: Error: failed\n");
	EXPECT_TEXT(First.Dump(), TEXT("LogTest: Warning: Count 3 of \u00E4\nLogTest: Log: traced\nLogTest: Error: failed\n"));
	EXPECT_TEXT(Second.Dump(), First.Dump());
}

TEST(LogTest, DoesNotEvaluateTheArgumentsOfSuppressedMessages)
{
	const FLogCapture Log;
	int32 NumEvaluated = 0;
	UE_LOG(LogTest, Verbose, TEXT("%d"), ++NumEvaluated);
	UE_LOG(LogQuiet, Warning, TEXT("%d"), ++NumEvaluated);
	UE_CLOG(false, LogTest, Error, TEXT("%d"), ++NumEvaluated);
	EXPECT_EQ(NumEvaluated, 0);
	UE_LOG(LogChatty, Verbose, TEXT("%d"), ++NumEvaluated);
	EXPECT_TEXT(Log.Dump(), TEXT("LogChatty: Verbose: 1\n"));
}

TEST(AssertionTest, EnsureReportsAndGoesOn)
{
	const FLogCapture Log;
	EXPECT_FALSE(ensure(1 + 1 == 3));
	EXPECT_TRUE(ensure(true));
	EXPECT_FALSE(ensureMsgf(false, TEXT("number %d"), 7));
	ASSERT_EQ(Log.GetMessages().Num(), 2);
	EXPECT_TRUE(Log.GetMessages()[0].Text.StartsWith(TEXT("Ensure condition failed: 1 + 1 == 3 [File:LogTest.cpp] [Line: ")));
	EXPECT_TRUE(Log.GetMessages()[1].Text.EndsWith(TEXT("number 7")));
}

TEST(AssertionDeathTest, ChecksAndFatalMessagesStop)
{
	const int32 Number = 7;
	EXPECT_DEATH(check(Number == 8), "Assertion failed: Number == 8 \\[File:LogTest.cpp\\] \\[Line: ");
	EXPECT_DEATH(checkf(Number == 8, TEXT("it is %d"), Number), "it is 7");
	EXPECT_DEATH(verify(Number == 8), "Assertion failed");
	EXPECT_DEATH(UE_LOG(LogTest, Fatal, TEXT("the end")), "LogTest: Fatal: the end");
}
