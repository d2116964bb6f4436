// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "ToolMenuEntry.h"

struct FToolMenuSection
{
	FName Name;
	// In the order of adding.
	TArray<FToolMenuEntry> Entries;

	// Takes the place of an entry of the same name, which is the command's unless overridden. The reference holds until the next entry is
	// added.
	FToolMenuEntry& AddMenuEntryWithCommandList(const TSharedPtr<const FUICommandInfo>& InCommand,
		const TSharedPtr<const FUICommandList>& InCommandList, const TAttribute<FText>& InLabelOverride = TAttribute<FText>(),
		const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(),
		const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(), const FName InTutorialHighlightName = NAME_None,
		const TOptional<FName> InNameOverride = TOptional<FName>());

	const FToolMenuEntry* FindEntry(const FName InName) const;
};
