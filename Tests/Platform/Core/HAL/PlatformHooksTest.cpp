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

TEST_F(PlatformHooksTest, HandsOverAddressAndText)
{
	FString Launched;
	FString Copied;
	FPlatformHooks::Get().LaunchURL = [&](const FString& URL, FString&)
	{
		Launched = URL;
		return true;
	};
	FPlatformHooks::Get().ClipboardCopy = [&](const FString& Text)
	{
		Copied = Text;
	};

	FString Error = TEXT("old");
	FWindowsPlatformProcess::LaunchURL(TEXT("https://example.com/"), TEXT("?a=1"), &Error);
	EXPECT_TEXT(Launched, TEXT("https://example.com/?a=1"));
	EXPECT_TEXT(Error, TEXT(""));
	FWindowsPlatformProcess::LaunchURL(TEXT("https://example.com/b"), nullptr, nullptr);
	EXPECT_TEXT(Launched, TEXT("https://example.com/b"));
	FWindowsPlatformApplicationMisc::ClipboardCopy(TEXT("a\nb"));
	EXPECT_TEXT(Copied, TEXT("a\nb"));
}

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
