// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "VorelUpdateService.h"

// Without a feed of versions the installed one counts as current, of which nobody is told.
class UInstalledUpdateService final : public UVorelUpdateService
{
public:
	void CheckForUpdates() override {}
};
