// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

struct FCommandLine;

// Does on the store what the command line says behind "conversations", without a display. Returns the exit status: 1, with a line on
// stderr, where that can't be done.
int RunConversationCommand(const FCommandLine& Line);
