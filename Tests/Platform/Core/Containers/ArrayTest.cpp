// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/Printers.h"

#include <gtest/gtest.h>

TEST(ArrayTest, AddsItsOwnElements)
{
	TArray<FString> Array = {TEXT("long enough to be on the heap, surely")};
	for (int32 Index = 0; Index < 20; ++Index)
	{
		Array.Add(Array[0]);
	}
	EXPECT_EQ(Array.Remove(Array[3]), 21);
}

TEST(ArrayDeathTest, StopsAtAnIndexOutside)
{
	const TArray<int32> Array = {1, 2};
	EXPECT_DEATH(Array[2], "Array index out of bounds: 2 into an array of size 2");
	EXPECT_DEATH(Array[-1], "Array index out of bounds: -1");
	EXPECT_DEATH(TArray<int32>().Last(), "Array index out of bounds");
	EXPECT_DEATH(TArray<int32>(Array).RemoveAt(1, 2), "Assertion failed");
}
