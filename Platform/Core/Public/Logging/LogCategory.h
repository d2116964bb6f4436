// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

class FLogCategoryBase
{
public:
	FLogCategoryBase(const TCHAR* InName, ELogVerbosity::Type InVerbosity)
		: Name(InName)
		, Verbosity(InVerbosity)
	{
	}

	const FName& GetCategoryName() const { return Name; }
	bool IsSuppressed(ELogVerbosity::Type Level) const { return Level > Verbosity; }

private:
	FName Name;
	ELogVerbosity::Type Verbosity;
};
