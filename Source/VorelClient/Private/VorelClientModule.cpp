// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Modules/ModuleManager.h"
#include "VorelClientServices.h"

class FVorelClientModule final : public IModuleInterface
{
public:
	void StartupModule() override { Services = MakeUnique<FVorelClientServices>(); }
	void ShutdownModule() override { Services.Reset(); }

	FVorelClient& GetClient() const { return *Services; }

private:
	TUniquePtr<FVorelClientServices> Services;
};

IMPLEMENT_MODULE(FVorelClientModule, VorelClient);

FVorelClient& FVorelClient::Get()
{
	return FModuleManager::LoadModuleChecked<FVorelClientModule>(TEXT("VorelClient")).GetClient();
}
