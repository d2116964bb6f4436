// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Assistant/AnswerReader.h"

// What is shown below an answer that the server cut, so that nobody takes it for whole. Markdown of our own, never sent to the assistant.
// Empty for every other end.
FString GetAnswerNote(EAnswerEnd End);
