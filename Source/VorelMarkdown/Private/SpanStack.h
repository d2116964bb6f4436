// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "MarkupStyle.h"
#include <md4c.h>

// The open spans of a block, each with the style that it and all around it make. md4c 0.4.8 loses an end or a beginning where delimiters
// stand inside the address of a link ("[~~a](b~~c)"), so an end closes what was opened inside, and one without a beginning is no end.
class FSpanStack
{
public:
	void Enter(MD_SPANTYPE Type, const FMarkupStyle& Style);

	// False where no such span is open.
	bool Leave(MD_SPANTYPE Type);
	void Clear();

	bool IsOpen(MD_SPANTYPE Type) const { return OpenCounts[Type] > 0; }

	// Null outside of all spans.
	const FMarkupStyle* GetStyle() const { return Spans.IsEmpty() ? nullptr : &Spans.Last().Style; }

private:
	struct FSpan
	{
		MD_SPANTYPE Type;
		FMarkupStyle Style;
	};

	TArray<FSpan> Spans;
	int32 OpenCounts[MD_SPAN_U + 1] = {};
};
