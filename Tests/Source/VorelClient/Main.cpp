// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include <QCoreApplication>

#include <gtest/gtest.h>

// The client runs on the application's event loop.
int main(int ArgumentCount, char** Arguments)
{
	testing::InitGoogleTest(&ArgumentCount, Arguments);
	const QCoreApplication Application(ArgumentCount, Arguments);
	return RUN_ALL_TESTS();
}
