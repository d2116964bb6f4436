// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Modules/ModuleManager.h"

class FVorelMarkdown : public IModuleInterface
{
};

IMPLEMENT_MODULE(FVorelMarkdown, VorelMarkdown);
