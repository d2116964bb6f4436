// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/Commands.h"

// The one command of the module.
class FVorelChatCommands : public TCommands<FVorelChatCommands>
{
public:
	FVorelChatCommands();

	void RegisterCommands() override;

	TSharedPtr<FUICommandInfo> OpenVorelAITab;
};
