// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "ToolMenuSection.h"
#include "ToolMenus.h"

static FToolMenuEntry& AddOrReplace(TArray<FToolMenuEntry>& Entries, FToolMenuEntry Entry)
{
	FToolMenuEntry* Existing = Entries.FindByPredicate([&Entry](const FToolMenuEntry& Each) { return Each.Name == Entry.Name; });
	if (Existing)
	{
		return *Existing = MoveTemp(Entry);
	}
	return Entries.Add_GetRef(MoveTemp(Entry));
}

FToolMenuEntry& FToolMenuSection::AddMenuEntryWithCommandList(const TSharedPtr<const FUICommandInfo>& InCommand,
	const TSharedPtr<const FUICommandList>& InCommandList, const TAttribute<FText>& InLabelOverride,
	const TAttribute<FText>& InToolTipOverride, const TAttribute<FSlateIcon>& InIconOverride, const FName InTutorialHighlightName,
	const TOptional<FName> InNameOverride)
{
	check(InCommand.IsValid());
	FToolMenuEntry Entry;
	Entry.Name = InNameOverride.Get(InCommand->GetCommandName());
	Entry.Owner = FToolMenuOwnerScoped::GetCurrentOwner();
	Entry.Command = InCommand;
	Entry.CommandList = InCommandList;
	Entry.LabelOverride = InLabelOverride;
	Entry.ToolTipOverride = InToolTipOverride;
	Entry.Icon = InIconOverride;
	FToolMenuEntry& Added = AddOrReplace(Entries, MoveTemp(Entry));
	if (UToolMenus* ToolMenus = UToolMenus::Get())
	{
		ToolMenus->OnMenusChanged.Broadcast();
	}
	return Added;
}

const FToolMenuEntry* FToolMenuSection::FindEntry(const FName InName) const
{
	return Entries.FindByPredicate([InName](const FToolMenuEntry& Entry) { return Entry.Name == InName; });
}
