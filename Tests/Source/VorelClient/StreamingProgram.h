// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// The test program started anew as one that converses with a streaming server until it is killed, and writes what it shows to stdout:
//   user N                 the question "Question N" is shown
//   chunk N LENGTH TIME    so much of answer N is shown, since that time in milliseconds of the machine's steady clock
//   answer N LENGTH        answer N is shown as complete
struct FStreamingProgram
{
	static constexpr const char* Switch = "--converse";

	// Questions are numbered from the given one on.
	static int Run(const FString& StoreFile, int32 FirstNumber);

	// Answer N is a beginning of this.
	static FString GetWholeAnswer(int32 Number);

	static int64 GetMilliseconds();
};
