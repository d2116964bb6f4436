// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/Printers.h"

#include <gtest/gtest.h>
#include <random>

TEST(MapTest, AgreesWithAPlainListUnderRandomUse)
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

TEST(SetTest, HoldsEachElementOnceInOrder)
{
	TSet<FString> Set = {TEXT("b"), TEXT("a")};
	bool bWasThere = false;
	Set.Add(TEXT("B"), &bWasThere);
	EXPECT_TRUE(bWasThere);
	Set.Add(TEXT("c"), &bWasThere);
	EXPECT_FALSE(bWasThere);
	EXPECT_TEXT(FString::Join(Set.Array(), TEXT("")), TEXT("bac"));
	EXPECT_EQ(Set.Remove(TEXT("A")), 1);
	EXPECT_FALSE(Set.Contains(TEXT("a")));
	EXPECT_EQ(Set.Num(), 2);
}
