// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Delegates/Delegate.h"

DECLARE_DELEGATE(FExecuteAction);
DECLARE_DELEGATE_RetVal(bool, FCanExecuteAction);

enum class EUIActionRepeatMode : uint8
{
	RepeatDisabled,
	// Again while the key is held.
	RepeatEnabled
};

struct FUIAction
{
	FExecuteAction ExecuteAction;
	// Unbound: always.
	FCanExecuteAction CanExecuteAction;
	EUIActionRepeatMode RepeatMode = EUIActionRepeatMode::RepeatDisabled;

	bool CanExecute() const { return !CanExecuteAction.IsBound() || CanExecuteAction.Execute(); }
	bool Execute() const { return CanExecute() && ExecuteAction.ExecuteIfBound(); }
};
