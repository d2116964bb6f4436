// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Application/DisplayChoice.h"
#include "Application/VorelProgram.h"
#include "Arguments/CommandTable.h"
#include "Conversations/ConversationCommands.h"
#include "Options/CommandLine.h"
#include "Play/PlayScript.h"

#include <QApplication>
#include <cstdio>

// For options and files that can't be used.
static constexpr int UsageStatus = 2;

static int RefuseToStart(const FString& Reason)
{
	std::fprintf(stderr, "%s\n", TCHAR_TO_UTF8(Reason));
	return UsageStatus;
}

static int OpenWindow(const FCommandLine& Line, const FPlayScript* Script, int ArgumentCount, char** Arguments)
{
	DisplayChoice::Choose(Line);
	// The options are ours, and none of them Qt's.
	int OnlyName = FMath::Min(ArgumentCount, 1);
	TUniquePtr<QApplication> Application;
	{
		const DisplayChoice::FOpeningScope Opening;
		Application = MakeUnique<QApplication>(OnlyName, Arguments);
	}
	return RunVorel(*Application, Line, Script);
}

int main(int ArgumentCount, char** Arguments)
{
	FString Error;
	const TOptional<FCommandLine> Line = FCommandLine::Parse(MakeArgumentList(ArgumentCount, Arguments), Error);
	if (!Line)
	{
		return RefuseToStart(TEXT("vorel: ") + Error);
	}
	if (Line->bHelp || Line->bVersion)
	{
		std::fputs(Line->bHelp ? TCHAR_TO_UTF8(FCommandLine::GetHelp()) : "vorel " VOREL_VERSION "\n", stdout);
		return 0;
	}
	if (!Line->Command.IsEmpty())
	{
		return RunConversationCommand(*Line);
	}
	const bool bPlays = !Line->PlayFile.IsEmpty();
	const TOptional<FPlayScript> Script = bPlays ? FPlayScript::Load(Line->PlayFile, Error) : NullOpt;
	if (bPlays && !Script)
	{
		return RefuseToStart(Error);
	}
	if (!Line->bOffscreen && !DisplayChoice::IsNamed())
	{
		return RefuseToStart(TEXT("vorel: there is no display; without one use --offscreen"));
	}
	return OpenWindow(*Line, Script.GetPtrOrNull(), ArgumentCount, Arguments);
}
