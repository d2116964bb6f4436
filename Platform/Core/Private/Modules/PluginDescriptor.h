// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Interfaces/IPluginManager.h"

// False, with the reason, where the file can't be read or does not hold a descriptor.
bool ReadPluginDescriptor(const FString& FileName, FPluginDescriptor& OutDescriptor, FString& OutError);
