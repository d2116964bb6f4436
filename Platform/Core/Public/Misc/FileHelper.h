// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/UnrealString.h"

struct FFileHelper
{
	// Reads UTF-8, with or without a byte order mark. False, and Result untouched, where the file can't be read.
	static bool LoadFileToString(FString& Result, const TCHAR* Filename);

	// Writes UTF-8 without a byte order mark, and makes the folders it needs. False where the file can't be written whole.
	static bool SaveStringToFile(FStringView String, const TCHAR* Filename);
};
