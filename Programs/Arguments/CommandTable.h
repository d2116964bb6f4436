// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// What can be done with something, as the second word of a command line: "conversations list".
struct FProgramCommand
{
	const TCHAR* Name;
	// Null for one that takes none.
	const TCHAR* Argument;
	const TCHAR* Help;
};

struct FProgramCommandTable
{
	// The first word.
	const TCHAR* Subject;
	TArray<FProgramCommand> Commands;

	// Takes the words that are no options: none at all, or the subject, a command, and its argument. OutCommand gets them without the
	// subject. Returns what is wrong, or nothing.
	FString Read(const TArray<FString>& Words, TArray<FString>& OutCommand) const;

	FString MakeHelp() const;
};

// Of an option or a command.
FString MakeHelpLine(const TCHAR* Name, const TCHAR* Value, const TCHAR* Help);

// The arguments of main, without the program's name.
TArray<FString> MakeArgumentList(int ArgumentCount, char** Arguments);
