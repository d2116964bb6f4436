// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UICommandList.h"
#include "Textures/SlateIcon.h"

// One line of a menu. It holds its command list weakly: entries outlive it, and then do nothing.
struct FToolMenuEntry
{
	FName Name;
	// Null where nobody owns it.
	const void* Owner = nullptr;
	TSharedPtr<const FUICommandInfo> Command;
	TWeakPtr<const FUICommandList> CommandList;
	// Unset: the command's own.
	TAttribute<FText> LabelOverride;
	TAttribute<FText> ToolTipOverride;
	TAttribute<FSlateIcon> Icon;

	FText GetLabel() const { return LabelOverride.IsSet() ? LabelOverride.Get() : Command->GetLabel(); }
	FText GetToolTip() const { return ToolTipOverride.IsSet() ? ToolTipOverride.Get() : Command->GetDescription(); }
	bool CanExecute() const;
	// False where there is nothing to do any more.
	bool Execute() const;
};
