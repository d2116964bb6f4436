// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// Tells which characters must not begin an inline construct, for two reasons. md4c 0.4.8 would take a single "~" as the beginning or end of
// struck text wherever it is: "~5 to ~10 minutes". And it needs quadratic time for three constructs: behind each bare address it searches
// the rest of the block, at each end of struck text it walks to the beginning, and at each bracket it counts lines. So a block may have
// only so many of them, which is far more than anyone writes.
class FInlineLimits
{
public:
	explicit FInlineLimits(FStringView InText)
		: Text(InText)
	{
	}

	// Called at the start of each line. An empty line or a list item begins a block.
	void BeginLine(int32 Position);

	// Called for each character once, in their order.
	bool MustBeText(int32 Position);

private:
	bool IsAt(int32 Position, FStringView Expected) const { return Text.Mid(Position, Expected.Len()).Equals(Expected); }
	bool IsTildeText(int32 Position);

	FStringView Text;

	// Behind the blanks and quotes of the present line. A fence of tildes may stand there.
	int32 ContentStart = 0;

	// Of the present block.
	int32 Lines = 0;
	int32 LineSteps = 0;
	int32 Addresses = 0;
	int32 TildeRuns = 0;
	bool bInTextTildes = false;
};
