// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "HAL/PlatformHooks.h"
#include "HAL/PlatformProcess.h"
#include "Support/LogCapture.h"
#include "Support/Printers.h"
#include "Windows/WindowsPlatformApplicationMisc.h"

#include <gtest/gtest.h>

class PlatformHooksTest : public testing::Test
{
protected:
	~PlatformHooksTest() override { FPlatformHooks::Get() = FPlatformHooks(); }
};

TEST_F(PlatformHooksTest, SaysWhyNothingHappened)
{
	const FLogCapture Log;
	FString Error;
	FWindowsPlatformProcess::LaunchURL(TEXT("x:"), nullptr, &Error);
	EXPECT_TEXT(Error, TEXT("There is no desktop to open it with"));
	FPlatformHooks::Get().LaunchURL = [](const FString&, FString& OutError)
	{
		OutError = TEXT("not allowed");
		return false;
	};
	FWindowsPlatformProcess::LaunchURL(TEXT("x:"), nullptr, &Error);
	EXPECT_TEXT(Error, TEXT("not allowed"));
	EXPECT_TRUE(Log.Has("LogPlatform", ELogVerbosity::Warning, TEXT("Can't open the address x:: not allowed")));
	FWindowsPlatformApplicationMisc::ClipboardCopy(TEXT("text"));
	EXPECT_TRUE(Log.Has("LogPlatform", ELogVerbosity::Warning, TEXT("There is no clipboard to copy to")));
}
