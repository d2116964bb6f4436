// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Layout/Margin.h"
#include "Types/SlateEnums.h"

class FArrangedChildren;
class FBasicLayoutSlot;
class FGeometry;

/** A stretch along one axis, in units. */
struct AlignmentArrangeResult
{
	float Offset = 0.0f;
	float Size = 0.0f;

	bool operator==(const AlignmentArrangeResult&) const = default;
};

/** A child within a stretch: without the padding on either side, filling the rest, or as large as it wishes but not larger than the rest.
 */
AlignmentArrangeResult AlignChild(EHorizontalAlignment Alignment, float AllottedSize, float DesiredSize, const FMargin& Padding);
AlignmentArrangeResult AlignChild(EVerticalAlignment Alignment, float AllottedSize, float DesiredSize, const FMargin& Padding);

/** Places the one child of a slot in the whole of a geometry. */
void ArrangeSingleChild(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren, const FBasicLayoutSlot& Slot);

/** The wish of a slot: its child's, and the padding; nothing for a collapsed child. */
FVector2D ComputeSlotDesiredSize(const FBasicLayoutSlot& Slot);
