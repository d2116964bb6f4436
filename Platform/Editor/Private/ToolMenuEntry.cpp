// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "ToolMenuEntry.h"

bool FToolMenuEntry::CanExecute() const
{
	const TSharedPtr<const FUICommandList> List = CommandList.Pin();
	return List && List->CanExecuteAction(Command.ToSharedRef());
}

bool FToolMenuEntry::Execute() const
{
	const TSharedPtr<const FUICommandList> List = CommandList.Pin();
	return List && List->ExecuteAction(Command.ToSharedRef());
}
