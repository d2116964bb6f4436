// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Layout/BoxLayout.h"

#include <gtest/gtest.h>

namespace
{
struct FRow
{
	const char* Name;
	TArray<FBoxSlotInput> Slots;
	float Allotted;
	TArray<FBoxSlotExtent> Expected;
};

FBoxSlotInput Auto(float Desired, float Padding = 0.0f, float MaxSize = 0.0f)
{
	return {Desired, Padding, 0.0f, MaxSize};
}

FBoxSlotInput Fill(float Weight, float Padding = 0.0f, float MaxSize = 0.0f)
{
	return {50.0f, Padding, Weight, MaxSize};
}
} // namespace

TEST(BoxLayout, DividesABoxAmongItsSlots)
{
	const FRow Rows[] = {{"No slots", {}, 100.0f, {}},
		{"What is wished for, wherever the box ends", {Auto(30.0f), Auto(90.0f)}, 100.0f, {{0.0f, 30.0f}, {30.0f, 90.0f}}},
		{"One that fills takes the rest", {Auto(30.0f), Fill(1.0f), Auto(20.0f)}, 100.0f, {{0.0f, 30.0f}, {30.0f, 50.0f}, {80.0f, 20.0f}}},
		{"Weights", {Fill(1.0f), Fill(3.0f)}, 100.0f, {{0.0f, 25.0f}, {25.0f, 75.0f}}},
		{"A child that fills may get less than it wishes", {Auto(80.0f), Fill(1.0f)}, 100.0f, {{0.0f, 80.0f}, {80.0f, 20.0f}}},
		{"Nothing is left", {Auto(130.0f), Fill(1.0f)}, 100.0f, {{0.0f, 130.0f}, {130.0f, 0.0f}}},
		{"Padding is part of the slot, and comes before sharing", {Auto(30.0f, 10.0f), Fill(1.0f, 20.0f), Fill(1.0f)}, 100.0f,
			{{0.0f, 40.0f}, {40.0f, 40.0f}, {80.0f, 20.0f}}},
		{"A limit without its padding", {Auto(30.0f, 5.0f, 25.0f), Fill(1.0f)}, 100.0f, {{0.0f, 30.0f}, {30.0f, 70.0f}}},
		{"What a limited slot leaves stays empty", {Fill(1.0f, 0.0f, 10.0f), Fill(1.0f)}, 100.0f, {{0.0f, 10.0f}, {10.0f, 50.0f}}}};
	for (const FRow& Row : Rows)
	{
		EXPECT_EQ(ArrangeBoxSlots(Row.Slots, Row.Allotted), Row.Expected) << Row.Name;
	}
}
