// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Arguments/CommandTable.h"

namespace
{
// "list, show or delete".
FString JoinNames(const TArray<FProgramCommand>& Commands)
{
	FString Names;
	for (int32 Index = 0; Index < Commands.Num(); ++Index)
	{
		const bool bLast = Index == Commands.Num() - 1;
		Names += Index == 0 ? TEXT("") : bLast ? TEXT(" or ") : TEXT(", ");
		Names += Commands[Index].Name;
	}
	return Names;
}
} // namespace

FString FProgramCommandTable::Read(const TArray<FString>& Words, TArray<FString>& OutCommand) const
{
	if (Words.IsEmpty())
	{
		return FString();
	}
	if (!Words[0].Equals(Subject))
	{
		return FString::Printf(TEXT("there is no option %s, see --help"), *Words[0]);
	}
	OutCommand = Words;
	OutCommand.RemoveAt(0);
	for (const FProgramCommand& Command : Commands)
	{
		if (!OutCommand.IsEmpty() && OutCommand[0].Equals(Command.Name))
		{
			const int32 NumWanted = Command.Argument ? 2 : 1;
			const TCHAR* const Argument = Command.Argument ? Command.Argument : TEXT("nothing");
			return OutCommand.Num() == NumWanted ? FString()
												 : FString::Printf(TEXT("%s %s takes %s, see --help"), Subject, Command.Name, Argument);
		}
	}
	return FString::Printf(TEXT("%s needs %s, see --help"), Subject, *JoinNames(Commands));
}

FString FProgramCommandTable::MakeHelp() const
{
	FString Help;
	for (const FProgramCommand& Command : Commands)
	{
		Help += MakeHelpLine(Command.Name, Command.Argument, Command.Help);
	}
	return Help;
}

FString MakeHelpLine(const TCHAR* Name, const TCHAR* Value, const TCHAR* Help)
{
	constexpr int32 Column = 20;
	const FString Form = FString(Name) + (Value ? FString(TEXT(" ")) + Value : FString());
	return FString::Printf(TEXT("  %s%s%s\n"), *Form, *FString::ChrN(FMath::Max(1, Column - Form.Len()), TEXT(' ')), Help);
}

TArray<FString> MakeArgumentList(int ArgumentCount, char** Arguments)
{
	TArray<FString> List;
	for (int Index = 1; Index < ArgumentCount; ++Index)
	{
		List.Add(FString(Arguments[Index]));
	}
	return List;
}
