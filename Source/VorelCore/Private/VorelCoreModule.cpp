// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "DataFolder.h"
#include "LogVorel.h"
#include "Modules/ModuleManager.h"
#include "VorelUserSettings.h"

DEFINE_LOG_CATEGORY(LogVorel);

class FVorelCore : public IModuleInterface
{
public:
	void StartupModule() override
	{
		const FString Folder = FDataFolder::Get();
		if (!Folder.IsEmpty())
		{
			UVorelUserSettings::Get()->Load(Folder / TEXT("settings.json"));
		}
	}
};

IMPLEMENT_MODULE(FVorelCore, VorelCore);
