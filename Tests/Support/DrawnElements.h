// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Rendering/DrawElements.h"

/** Hands out what a chunk draws, in order, each with the clips around it. */
inline void ForEachDrawn(const FSlateDrawChunk& Chunk, TFunctionRef<void(const FSlateDrawElement&, const FSlateRect& Clip)> Visit,
	const FSlateRect& Around = FSlateRect::Everything())
{
	const FSlateRect Clip = Chunk.GetClip().IsSet() ? Around.IntersectionWith(Chunk.GetClip().GetValue()) : Around;
	for (const FSlateDrawChunk::FItem& Item : Chunk.GetItems())
	{
		if (const auto* Inner = std::get_if<TSharedRef<const FSlateDrawChunk>>(&Item))
		{
			ForEachDrawn(**Inner, Visit, Clip);
		}
		else
		{
			Visit(std::get<FSlateDrawElement>(Item), Clip);
		}
	}
}
