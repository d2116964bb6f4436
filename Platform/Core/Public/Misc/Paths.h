// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/UnrealString.h"

// Paths use slashes. Nothing here but FileExists looks at the disk.
class FPaths
{
public:
	// The folder of the plug-in's descriptor, found upwards from the program. Empty where there is none.
	static const FString& ProjectDir();
	// What the platform brings along itself.
	static FString EngineContentDir();

	template <typename... PathTypes>
	static FString Combine(const FString& First, const PathTypes&... Others)
	{
		FString Result = First;
		((Result = ::MoveTemp(Result) / Others), ...);
		return Result;
	}

	static bool FileExists(const FString& InPath);

	// "/a/b.txt" gives "/a", "b.txt", "b" and "txt".
	static FString GetPath(const FString& InPath);
	static FString GetCleanFilename(const FString& InPath);
	static FString GetBaseFilename(const FString& InPath);
	static FString GetExtension(const FString& InPath);

	static bool IsRelative(const FString& InPath) { return !InPath.StartsWith(TEXT("/")); }
	// Absolute and without "." and "..".
	static FString ConvertRelativePathToFull(const FString& InPath);
};
