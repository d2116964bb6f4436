// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include <gtest/gtest.h>

int main(int ArgumentCount, char** Arguments)
{
	testing::InitGoogleTest(&ArgumentCount, Arguments);
	// A process that dies in a death test must not take other threads along.
	testing::GTEST_FLAG(death_test_style) = "threadsafe";
	return RUN_ALL_TESTS();
}
