// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

class FVorelChatUIController;

// The chat tab of the editor. Holds the three style sets up while it runs.
class VORELCHATUI_API FVorelChatUI : public IModuleInterface
{
public:
	// Loads the module if that has not happened.
	static FVorelChatUI& Get();

	void StartupModule() override;
	void ShutdownModule() override;

private:
	TSharedPtr<FVorelChatUIController> ChatUIController;
};
