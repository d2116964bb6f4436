// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Commands/UICommandList.h"

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
	FCanExecuteAction CanExecuteAction, EUIActionRepeatMode RepeatMode)
{
	check(InUICommandInfo.IsValid());
	Actions.Add(InUICommandInfo, {MoveTemp(ExecuteAction), MoveTemp(CanExecuteAction), RepeatMode});
}

bool FUICommandList::IsActionMapped(const TSharedPtr<const FUICommandInfo> InUICommandInfo) const
{
	return Actions.Contains(InUICommandInfo);
}

bool FUICommandList::CanExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const
{
	const FUIAction* Action = Actions.Find(InUICommandInfo);
	return Action && Action->CanExecute();
}

bool FUICommandList::ExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const
{
	// A copy, since the action may end this list.
	const FUIAction Action = Actions.FindRef(InUICommandInfo);
	return Action.Execute();
}
