// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Commands/UICommandInfo.h"

// One set of commands, made once by Register: class FMyCommands : public TCommands<FMyCommands>.
template <typename CommandContextType>
class TCommands : public FBindingContext
{
public:
	// Does nothing where it is registered already.
	static void Register()
	{
		if (!IsRegistered())
		{
			Instance = MakeShared<CommandContextType>();
			Instance->RegisterCommands();
		}
	}

	static bool IsRegistered() { return Instance.IsValid(); }
	static const CommandContextType& Get() { return *Instance; }

	// Makes each command.
	virtual void RegisterCommands() = 0;

protected:
	TCommands(const FName InContextName, const FText& InContextDesc, const FName InContextParent, const FName InStyleSetName)
		: FBindingContext(InContextName, InContextDesc, InContextParent, InStyleSetName)
	{
	}

private:
	static inline TSharedPtr<CommandContextType> Instance;
};

// Inside RegisterCommands, in a file that defines LOCTEXT_NAMESPACE. The last arguments are one or two chords.
#define UI_COMMAND(CommandId, FriendlyName, InDescription, CommandType, ...)                                                               \
	MakeUICommand_InternalUseOnly(this, CommandId, TEXT(LOCTEXT_NAMESPACE), TEXT(#CommandId), TEXT(#CommandId) TEXT("_ToolTip"),           \
		"." #CommandId, TEXT(FriendlyName), TEXT(InDescription), CommandType, __VA_ARGS__)
