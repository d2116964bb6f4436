// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// The folder that holds what outlives a run.
class FDataFolder
{
public:
	// In place of the user's own folder, until an empty path is set. A relative path counts from the current folder at the time of the
	// call.
	static void Set(const FString& Path);

	// What was set, else the default of "vorel-ai". It need not exist.
	static FString Get();

	// A program's folder in XDG_DATA_HOME or in ~/.local/share. Empty where the user has no home.
	static FString GetDefault(const FString& ProgramName);

	// Makes the folder where it is missing, for its owner alone. False, with a sentence for the user, where that can't be done.
	static bool Create(FString& OutError);
};
