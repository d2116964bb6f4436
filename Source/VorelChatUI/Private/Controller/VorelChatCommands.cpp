// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Controller/VorelChatCommands.h"

#include "Styling/AppStyle.h"

#define LOCTEXT_NAMESPACE "FVorelChatUI"

FVorelChatCommands::FVorelChatCommands()
	: TCommands<FVorelChatCommands>(
		  "VorelChat", NSLOCTEXT("Contexts", "VorelChat", "Vorel Chat Plugin"), NAME_None, FAppStyle::GetAppStyleSetName())
{
}

void FVorelChatCommands::RegisterCommands()
{
	UI_COMMAND(
		OpenVorelAITab, "Vorel AI", "Open the Vorel AI chat interface", EUserInterfaceActionType::Button, FInputChord(), FInputChord());
}

#undef LOCTEXT_NAMESPACE
