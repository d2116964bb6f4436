// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Types/SlateEnums.h"

/** What the arithmetic of boxes knows of one slot, along the box. All lengths in units. */
struct FBoxSlotInput
{
	/** Of the child, without padding; a collapsed child has no slot here. */
	float DesiredSize = 0.0f;
	/** On both sides together. */
	float Padding = 0.0f;
	/** Zero for a slot that takes what its child wishes; else its part of what is left. */
	float FillWeight = 0.0f;
	/** The child gets no more than this, without padding; zero means no limit. */
	float MaxSize = 0.0f;
};

/** Where a slot begins and how long it is, padding included. */
struct FBoxSlotExtent
{
	float Offset = 0.0f;
	float Size = 0.0f;

	bool operator==(const FBoxSlotExtent&) const = default;
};

/** How long a slot is if it gets what it wishes, padding included. */
float GetWishedBoxSlotSize(const FBoxSlotInput& Slot);

/**
 * Divides a box among its slots: those without weight get what they wish for, also where that is more than there is; the rest is shared by
 * weight. What a limited slot cannot take is not given to others.
 */
TArray<FBoxSlotExtent> ArrangeBoxSlots(const TArray<FBoxSlotInput>& Slots, float AllottedSize);
