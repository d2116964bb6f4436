// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreTypes.h"

namespace ELogVerbosity
{
enum Type : uint8
{
	NoLogging = 0,
	// Also stops the process.
	Fatal,
	Error,
	Warning,
	Display,
	Log,
	Verbose,
	VeryVerbose,
	All = VeryVerbose
};
}

// "Warning" and so on.
const TCHAR* ToString(ELogVerbosity::Type Verbosity);
