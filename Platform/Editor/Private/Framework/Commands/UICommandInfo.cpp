// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Commands/UICommandInfo.h"

void MakeUICommand_InternalUseOnly(FBindingContext* This, TSharedPtr<FUICommandInfo>& OutCommand, const TCHAR* InSubNamespace,
	const TCHAR* InCommandName, const TCHAR* InCommandNameUnderscoreTooltip, const ANSICHAR* DotCommandName, const TCHAR* FriendlyName,
	const TCHAR* InDescription, const EUserInterfaceActionType CommandType, const FInputChord& InDefaultChord,
	const FInputChord& InAlternateDefaultChord)
{
	const TSharedRef<FUICommandInfo> Command = MakeShared<FUICommandInfo>();
	Command->CommandName = InCommandName;
	Command->BindingContext = This->GetContextName();
	Command->IconStyleName = FName(This->GetContextName().ToString() + FString(DotCommandName));
	Command->Label = FText::AsLocalizable_Advanced(InSubNamespace, InCommandName, FriendlyName);
	Command->Description = FText::AsLocalizable_Advanced(InSubNamespace, InCommandNameUnderscoreTooltip, InDescription);
	Command->UserInterfaceType = CommandType;
	Command->DefaultChord = InDefaultChord;
	Command->AlternateDefaultChord = InAlternateDefaultChord;
	OutCommand = Command;
}
