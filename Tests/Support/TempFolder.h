// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include <string>
#include <string_view>

// A new empty folder that is deleted, with what is in it, at the end.
class FTempFolder
{
public:
	FTempFolder();
	~FTempFolder();
	FTempFolder(const FTempFolder&) = delete;
	FTempFolder& operator=(const FTempFolder&) = delete;

	const FString& GetPath() const { return Path; }
	FString GetPath(const TCHAR* Name) const { return Path / Name; }

	void Write(const TCHAR* Name, std::string_view Bytes) const;
	// Empty where there is no such file.
	std::string Read(const TCHAR* Name) const;

private:
	FString Path;
};
