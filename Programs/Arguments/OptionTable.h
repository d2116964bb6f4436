// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Arguments/CommandTable.h"

// One option of a program whose command line is read into a LineType.
template <typename LineType>
struct TOption
{
	const TCHAR* Name;
	// Null for an option that stands alone.
	const TCHAR* ValueName;
	const TCHAR* Help;
	// False where the value can't be used.
	bool (*Set)(LineType& Line, const FString& Value);
	// What is wrong then: "--size needs ...".
	const TCHAR* Needs = nullptr;
};

template <typename LineType, size_t Num>
const TOption<LineType>* FindOption(const TOption<LineType> (&Options)[Num], const FString& Name)
{
	for (const TOption<LineType>& Option : Options)
	{
		if (Name.Equals(Option.Name))
		{
			return &Option;
		}
	}
	return nullptr;
}

// Reads the option at Index, and moves Index to its last argument. Returns what is wrong with it, or nothing.
template <typename LineType, size_t Num>
FString ReadOption(const TOption<LineType> (&Options)[Num], const TArray<FString>& Arguments, int32& Index, LineType& Line)
{
	FString Name = Arguments[Index];
	FString Value;
	const bool bHasValue = Name.StartsWith(TEXT("--")) && Name.Split(TEXT("="), &Name, &Value);
	const TOption<LineType>* const Option = FindOption(Options, Name);
	if (!Option)
	{
		return FString::Printf(TEXT("there is no option %s, see --help"), *Name);
	}
	if (!Option->ValueName && bHasValue)
	{
		return FString::Printf(TEXT("%s takes no value"), *Name);
	}
	if (Option->ValueName && !bHasValue)
	{
		Value = Arguments.IsValidIndex(Index + 1) ? Arguments[++Index] : FString();
	}
	return Option->Set(Line, Value) ? FString() : FString::Printf(TEXT("%s needs %s"), *Name, Option->Needs);
}

// Reads all options and collects the other words. Options stand before, behind or within the words, but not behind "--". An option's value
// follows it, or stands behind its equals sign; of an option given twice the last counts. Returns what is wrong, or nothing.
template <typename LineType, size_t Num>
FString ReadArguments(const TOption<LineType> (&Options)[Num], const TArray<FString>& Arguments, LineType& Line, TArray<FString>& OutWords)
{
	bool bOptionsOver = false;
	for (int32 Index = 0; Index < Arguments.Num(); ++Index)
	{
		if (!bOptionsOver && Arguments[Index].Equals(TEXT("--")))
		{
			bOptionsOver = true;
			continue;
		}
		if (bOptionsOver || !Arguments[Index].StartsWith(TEXT("-")))
		{
			OutWords.Add(Arguments[Index]);
			continue;
		}
		const FString Error = ReadOption(Options, Arguments, Index, Line);
		if (!Error.IsEmpty())
		{
			return Error;
		}
	}
	return FString();
}

template <typename LineType, size_t Num>
FString MakeHelp(const TOption<LineType> (&Options)[Num])
{
	FString Help;
	for (const TOption<LineType>& Option : Options)
	{
		Help += MakeHelpLine(Option.Name, Option.ValueName, Option.Help);
	}
	return Help;
}
