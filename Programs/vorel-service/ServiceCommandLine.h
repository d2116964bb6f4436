// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "ListenAddress.h"

// What the program was asked for on its command line.
struct FServiceCommandLine
{
	bool bHelp = false;
	bool bVersion = false;
	FListenAddress Listen;
	// Empty: as it listens.
	FString PublicUrl;
	// Empty: the user's own folder.
	FString DataDir;
	int32 DailyCredits = 100;
	// What the version feed announces.
	FString PluginVersion = TEXT(VOREL_VERSION);

	// What to do with the accounts, with its argument where it takes one; empty where the service is wanted.
	TArray<FString> Command;

	// Unset, with one sentence for the user, where something is wrong.
	static TOptional<FServiceCommandLine> Parse(const TArray<FString>& Arguments, FString& OutError);

	static FString GetHelp();
};
