// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "ConversationRecord.h"

// What is shown below an answer that is not whole, so that nobody takes it for that. Markdown of our own, never sent to the assistant, and
// stored nowhere. Where the answer ends within a block of code, the block is closed first. Empty for a complete one.
FString MakeAnswerNote(const FString& Answer, EAnswerEnd End);
