// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include <QApplication>
#include <gtest/gtest.h>

// For tests with a window: Qt without a display.
int main(int ArgumentCount, char** Arguments)
{
	testing::InitGoogleTest(&ArgumentCount, Arguments);
	testing::GTEST_FLAG(death_test_style) = "threadsafe";
	qputenv("QT_QPA_PLATFORM", "offscreen");
	QApplication Application(ArgumentCount, Arguments);
	return RUN_ALL_TESTS();
}
