// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include <md4c.h>
#include <string_view>

// A stretch of a source, and what the reader makes of it.
struct FProbedStretch
{
	size_t Begin;
	size_t End;

	// Of the text that stands there. MD_BLOCK_DOC, and no number, where there is none: marks are no text.
	MD_BLOCKTYPE Block = MD_BLOCK_DOC;
	int32 BlockNumber = 0;
};

// The stretches stand in their order and apart from each other.
void ProbeBlocks(std::string_view Source, TArray<FProbedStretch>& Stretches);
