// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QDebug>

#include "DesktopApplication.h"
#include "HAL/PlatformProcess.h"
#include "Support/LogCapture.h"
#include "Support/Printers.h"

#include <gtest/gtest.h>

TEST(Desktop, OnlyWebAndMailAddressesAreOpened)
{
	FDesktopApplication& Desktop = FDesktopApplication::Get();
	const int32 Before = Desktop.GetOpenedAddresses().Num();
	for (const TCHAR* Address : {TEXT("file:///etc/passwd"), TEXT("javascript:alert(1)"), TEXT("data:text/html,x"), TEXT("//host/path"),
			 TEXT("http:///nohost"), TEXT("calc.exe"), TEXT(""), TEXT("https://exa mple.com"), TEXT("ms-settings:")})
	{
		FString Error;
		EXPECT_FALSE(Desktop.OpenAddress(Address, Error)) << FString(Address);
		EXPECT_FALSE(Error.IsEmpty());
	}
	const FLogCapture Log;
	FPlatformProcess::LaunchURL(TEXT("calc.exe"), nullptr, nullptr);
	EXPECT_TRUE(Log.Dump().Contains(TEXT("LogPlatform: Warning: Can't open the address calc.exe: "))) << Log.Dump();
	EXPECT_EQ(Desktop.GetOpenedAddresses().Num(), Before);
	qCritical("Launch failed (https://example.com/login?state=secret)");
	EXPECT_TRUE(Log.Dump().EndsWith(TEXT("LogDesktop: Error: Launch failed (https://example.com/login\n"))) << Log.Dump();

	FPlatformProcess::LaunchURL(TEXT("https://example.com/tos?a=b#c"), nullptr, nullptr);
	FPlatformProcess::LaunchURL(TEXT("mailto:someone@example.com"), nullptr, nullptr);
	ASSERT_EQ(Desktop.GetOpenedAddresses().Num(), Before + 2);
	EXPECT_EQ(Desktop.GetOpenedAddresses()[Before], FString(TEXT("https://example.com/tos?a=b#c")));
}
