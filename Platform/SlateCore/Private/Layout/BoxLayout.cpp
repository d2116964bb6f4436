// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Layout/BoxLayout.h"

namespace
{
float LimitToMaxSize(const FBoxSlotInput& Slot, float ChildSize)
{
	return Slot.MaxSize > 0.0f ? FMath::Min(ChildSize, Slot.MaxSize) : ChildSize;
}
} // namespace

float GetWishedBoxSlotSize(const FBoxSlotInput& Slot)
{
	return LimitToMaxSize(Slot, Slot.DesiredSize) + Slot.Padding;
}

TArray<FBoxSlotExtent> ArrangeBoxSlots(const TArray<FBoxSlotInput>& Slots, float AllottedSize)
{
	float Taken = 0.0f;
	float TotalWeight = 0.0f;
	for (const FBoxSlotInput& Slot : Slots)
	{
		Taken += Slot.FillWeight > 0.0f ? Slot.Padding : GetWishedBoxSlotSize(Slot);
		TotalWeight += Slot.FillWeight;
	}
	const float ToShare = FMath::Max(0.0f, AllottedSize - Taken);

	TArray<FBoxSlotExtent> Extents;
	Extents.Reserve(Slots.Num());
	float Offset = 0.0f;
	for (const FBoxSlotInput& Slot : Slots)
	{
		const float Size = Slot.FillWeight > 0.0f ? LimitToMaxSize(Slot, ToShare * Slot.FillWeight / TotalWeight) + Slot.Padding
												  : GetWishedBoxSlotSize(Slot);
		Extents.Add({Offset, Size});
		Offset += Size;
	}
	return Extents;
}
