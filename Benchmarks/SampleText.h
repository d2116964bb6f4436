// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// An answer of at least the given length as assistants write them: headings, paragraphs with emphasis, inline code and links, lists,
// quotes, and code blocks for about a third of it. Its words repeat, as those of real answers do; its numbers do not.
FString MakeSampleMarkdown(int32 Length);

// The two shapes of a text that are hardest to keep up with while it grows: one paragraph without a line's end, and one block of code.
FString MakeSampleParagraph(int32 Length);
FString MakeSampleCodeBlock(int32 Length);

// Nothing but blocks of one line of code.
FString MakeSmallCodeBlocks(int32 Length);
