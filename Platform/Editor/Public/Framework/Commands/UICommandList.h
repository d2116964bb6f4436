// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandInfo.h"

// Says what commands do.
class FUICommandList : public TSharedFromThis<FUICommandList>
{
public:
	// Takes the place of an earlier action of the same command.
	void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
		FCanExecuteAction CanExecuteAction = FCanExecuteAction(), EUIActionRepeatMode RepeatMode = EUIActionRepeatMode::RepeatDisabled);

	bool IsActionMapped(const TSharedPtr<const FUICommandInfo> InUICommandInfo) const;

	// Both false for a command that is not mapped.
	bool CanExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const;
	bool ExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const;

private:
	TMap<TSharedPtr<const FUICommandInfo>, FUIAction> Actions;
};
