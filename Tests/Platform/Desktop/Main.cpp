// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "DesktopApplication.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int Count, char** Arguments)
{
	testing::InitGoogleTest(&Count, Arguments);
	qputenv("QT_QPA_PLATFORM", "offscreen");
	QApplication Application(Count, Arguments);
	FDesktopApplication::Create(EBrowserMode::Record);
	const int Result = RUN_ALL_TESTS();
	FDesktopApplication::Shutdown();
	return Result;
}
