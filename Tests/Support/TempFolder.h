// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// A new empty folder that is deleted, with what is in it, at the end.
class FTempFolder
{
public:
	FTempFolder();
	~FTempFolder();
	FTempFolder(const FTempFolder&) = delete;
	FTempFolder& operator=(const FTempFolder&) = delete;

	const FString& GetPath() const { return Path; }

private:
	FString Path;
};
