// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

// Takes log messages. May be called on any thread, one message at a time; must not log itself.
class FOutputDevice
{
public:
	virtual ~FOutputDevice() = default;
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) = 0;
};
