// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "SpanStack.h"

#include <algorithm>

void FSpanStack::Enter(MD_SPANTYPE Type, const FMarkupStyle& Style)
{
	Spans.Add({Type, Style});
	++OpenCounts[Type];
}

bool FSpanStack::Leave(MD_SPANTYPE Type)
{
	if (!IsOpen(Type))
	{
		return false;
	}
	MD_SPANTYPE Closed;
	do
	{
		Closed = Spans.Pop().Type;
		--OpenCounts[Closed];
	} while (Closed != Type);
	return true;
}

void FSpanStack::Clear()
{
	Spans.Reset();
	std::ranges::fill(OpenCounts, 0);
}
