// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "AccountCommands.h"
#include "Arguments/CommandTable.h"
#include "DataFolder.h"
#include "RunService.h"
#include "ServiceCommandLine.h"

#include <cstdio>

static bool Run(const FServiceCommandLine& Line, FString& OutError)
{
	FDataFolder::Set(Line.DataDir.IsEmpty() ? FDataFolder::GetDefault(TEXT("vorel-service")) : Line.DataDir);
	if (!FDataFolder::Create(OutError))
	{
		return false;
	}
	const FString DataFile = FDataFolder::Get() / TEXT("service.sqlite");
	return Line.Command.IsEmpty() ? RunService(Line, DataFile, OutError) : RunAccountCommand(Line.Command, DataFile, OutError);
}

int main(int ArgumentCount, char** Arguments)
{
	FString Error;
	const TOptional<FServiceCommandLine> Line = FServiceCommandLine::Parse(MakeArgumentList(ArgumentCount, Arguments), Error);
	if (Line && (Line->bHelp || Line->bVersion))
	{
		std::fputs(Line->bHelp ? TCHAR_TO_UTF8(FServiceCommandLine::GetHelp()) : "vorel-service " VOREL_VERSION "\n", stdout);
		return 0;
	}
	if (!Line || !Run(*Line, Error))
	{
		std::fprintf(stderr, "vorel-service: %s\n", TCHAR_TO_UTF8(Error));
		return 2;
	}
	return 0;
}
