// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/Printers.h"

#include <gtest/gtest.h>
#include <random>

TEST(ContainersTest, AnArrayAddsItsOwnElements)
{
	TArray<FString> Array = {TEXT("long enough to be on the heap, surely")};
	for (int32 Index = 0; Index < 20; ++Index)
	{
		Array.Add(Array[0]);
	}
	EXPECT_EQ(Array.Remove(Array[3]), 21);
}

TEST(ContainersTest, AMapAgreesWithAPlainListUnderRandomUse)
{
	std::mt19937 Random(7);
	TMap<int32, int32> Map;
	TArray<TPair<int32, int32>> List;
	for (int32 Step = 0; Step < 20000; ++Step)
	{
		const int32 Key = static_cast<int32>(Random() % 200);
		const int32 Index = List.IndexOfByPredicate([Key](const auto& Pair) { return Pair.Key == Key; });
		if (Random() % 2 == 0)
		{
			Map.Add(Key, Step);
			Index == INDEX_NONE ? void(List.Add({Key, Step})) : void(List[Index].Value = Step);
		}
		else
		{
			ASSERT_EQ(Map.Remove(Key), Index == INDEX_NONE ? 0 : 1);
			Index == INDEX_NONE ? void() : List.RemoveAt(Index);
		}
	}
	TArray<TPair<int32, int32>> Seen;
	for (const auto& Pair : Map)
	{
		Seen.Add(Pair);
	}
	EXPECT_EQ(Seen, List);
}

TEST(ContainersTest, ASetHoldsEachElementOnceInOrder)
{
	TSet<FString> Set = {TEXT("b"), TEXT("a"), TEXT("B"), TEXT("c")};
	EXPECT_EQ(Set.Remove(TEXT("A")), 1);
	EXPECT_TEXT(FString::Join(Set.Array(), TEXT("")), TEXT("bc"));
}

TEST(ContainersDeathTest, StopAtAnIndexOutside)
{
	const TArray<int32> Array = {1, 2};
	EXPECT_DEATH(Array[2], "Array index out of bounds: 2 into an array of size 2");
	EXPECT_DEATH(Array[-1], "Array index out of bounds: -1");
	EXPECT_DEATH(TArray<int32>(Array).RemoveAt(1, 2), "Assertion failed");
	EXPECT_DEATH(FString(TEXT("abc"))[3], "String index out of bounds: Index 3 from a string with a length of 3");
	EXPECT_DEATH(FString(TEXT("abc")).RemoveAt(1, 3), "Assertion failed");
}
