// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Logging/LogMacros.h"
#include "Misc/OutputDeviceRedirector.h"

#include <cstdlib>

DEFINE_LOG_CATEGORY(LogTemp);

const TCHAR* ToString(ELogVerbosity::Type Verbosity)
{
	switch (Verbosity)
	{
	case ELogVerbosity::Fatal:
		return TEXT("Fatal");
	case ELogVerbosity::Error:
		return TEXT("Error");
	case ELogVerbosity::Warning:
		return TEXT("Warning");
	case ELogVerbosity::Display:
		return TEXT("Display");
	case ELogVerbosity::Log:
		return TEXT("Log");
	case ELogVerbosity::Verbose:
		return TEXT("Verbose");
	case ELogVerbosity::VeryVerbose:
		return TEXT("VeryVerbose");
	case ELogVerbosity::NoLogging:
		break;
	}
	return TEXT("NoLogging");
}

void FMsg::LogImpl(const FLogCategoryBase& Category, ELogVerbosity::Type Verbosity, const TCHAR* Format, FVarArgs Arguments)
{
	GLog->Serialize(*FString::PrintfImpl(Format, Arguments), Verbosity, Category.GetCategoryName());
	if (Verbosity == ELogVerbosity::Fatal)
	{
		std::abort();
	}
}
