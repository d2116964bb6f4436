// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/Printers.h"

#include <gtest/gtest.h>

TEST(ArrayTest, AddsInsertsAndRemoves)
{
	TArray<FString> Array = {TEXT("a"), TEXT("b")};
	EXPECT_EQ(Array.Add(TEXT("c")), 2);
	EXPECT_EQ(Array.AddUnique(TEXT("B")), 1);
	EXPECT_EQ(Array.Insert(TEXT("x"), 0), 0);
	EXPECT_TEXT(FString::Join(Array, TEXT("")), TEXT("xabc"));
	Array.RemoveAt(1, 2);
	EXPECT_TEXT(FString::Join(Array, TEXT("")), TEXT("xc"));
	EXPECT_EQ(Array.Remove(TEXT("X")), 1);
	EXPECT_EQ(Array.Remove(TEXT("X")), 0);
	EXPECT_TEXT(Array.Pop(), TEXT("c"));
	EXPECT_TRUE(Array.IsEmpty());
}

TEST(ArrayTest, AddsItsOwnElements)
{
	TArray<FString> Array = {TEXT("long enough to be on the heap, surely")};
	for (int32 Index = 0; Index < 20; ++Index)
	{
		Array.Add(Array[0]);
	}
	EXPECT_EQ(Array.Remove(Array[3]), 21);
}

TEST(ArrayTest, FindsByValueAndPredicate)
{
	const TArray<int32> Array = {5, 7, 5, 9};
	EXPECT_EQ(Array.Find(5), 0);
	EXPECT_EQ(Array.FindLast(5), 2);
	EXPECT_EQ(Array.Find(1), INDEX_NONE);
	EXPECT_TRUE(Array.Contains(9));
	const auto IsBig = [](int32 Value)
	{
		return Value > 6;
	};
	EXPECT_EQ(Array.IndexOfByPredicate(IsBig), 1);
	EXPECT_EQ(*Array.FindByPredicate(IsBig), 7);
	EXPECT_EQ(Array.FilterByPredicate(IsBig), (TArray<int32>{7, 9}));
	EXPECT_EQ(Array.FindByPredicate([](int32 Value) { return Value > 9; }), nullptr);
}

TEST(ArrayTest, SortsAppendsAndSwaps)
{
	TArray<int32> Array = {3, 1, 2};
	Array.Sort();
	EXPECT_EQ(Array, (TArray<int32>{1, 2, 3}));
	Array.Sort([](int32 Lhs, int32 Rhs) { return Lhs > Rhs; });
	EXPECT_EQ(Array, (TArray<int32>{3, 2, 1}));
	Array.Append({4, 5});
	EXPECT_EQ(Array.RemoveAll([](int32 Value) { return Value < 4; }), 3);
	EXPECT_EQ(Array, (TArray<int32>{4, 5}));
	Array.SetNum(3);
	EXPECT_EQ(Array, (TArray<int32>{4, 5, 0}));
	Array.Swap(0, 2);
	EXPECT_EQ(Array, (TArray<int32>{0, 5, 4}));
}

TEST(ArrayTest, MovesElementsThatCannotBeCopied)
{
	TArray<TUniquePtr<int32>> Array;
	Array.Add(MakeUnique<int32>(1));
	Array.Emplace(new int32(2));
	TUniquePtr<int32> Last = Array.Pop();
	EXPECT_EQ(*Last, 2);
	EXPECT_EQ(*Array[0], 1);
}

TEST(ArrayDeathTest, StopsAtAnIndexOutside)
{
	const TArray<int32> Array = {1, 2};
	EXPECT_DEATH(Array[2], "Array index out of bounds: 2 into an array of size 2");
	EXPECT_DEATH(Array[-1], "Array index out of bounds: -1");
	EXPECT_DEATH(TArray<int32>().Last(), "Array index out of bounds");
	EXPECT_DEATH(TArray<int32>(Array).RemoveAt(1, 2), "Assertion failed");
}
