// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

#include <compare>

/** A place between two UTF-16 units of a layout's model text. Lines are model lines, not wrapped ones. */
struct FTextLocation
{
	FTextLocation() = default;
	explicit FTextLocation(int32 InLineIndex, int32 InOffset = 0)
		: LineIndex(InLineIndex)
		, Offset(InOffset)
	{
	}

	auto operator<=>(const FTextLocation&) const = default;

	int32 GetLineIndex() const { return LineIndex; }
	int32 GetOffset() const { return Offset; }

private:
	int32 LineIndex = 0;
	int32 Offset = 0;
};

/** The text between two locations, whichever was set first. */
class FTextSelection
{
public:
	FTextSelection() = default;
	FTextSelection(const FTextLocation& InLocationA, const FTextLocation& InLocationB)
		: LocationA(InLocationA)
		, LocationB(InLocationB)
	{
	}

	bool operator==(const FTextSelection&) const = default;

	const FTextLocation& GetBeginning() const { return LocationA < LocationB ? LocationA : LocationB; }
	const FTextLocation& GetEnd() const { return LocationA < LocationB ? LocationB : LocationA; }
	bool IsEmpty() const { return LocationA == LocationB; }

private:
	FTextLocation LocationA;
	FTextLocation LocationB;
};
