// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include <string>

// A small file that nobody but the user may read.
namespace PrivateFile
{
// Makes the folder, for the user alone, where it is missing. False for one of another user. May be a link.
bool MakeFolder(const FString& Folder);

// The same, but no link, and shuts others out of one that was there.
bool MakePrivateFolder(const FString& Folder);

// Whole or not at all.
bool Write(const FString& File, const std::string& Text);

enum class ERead : uint8
{
	Done,
	Missing,
	// Not readable, not a file, far too long, or open to others.
	Unusable
};
ERead Read(const FString& File, std::string& OutText);

void Remove(const FString& File);
} // namespace PrivateFile
