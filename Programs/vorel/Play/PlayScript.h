// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Play/PlayStep.h"

struct FPlayLine
{
	// From 1.
	int32 Number;
	FPlayStep Step;
};

// A play file that has been read to its end.
struct FPlayScript
{
	// As the user named it.
	FString File;
	TArray<FPlayLine> Lines;

	// Unset, with a sentence for the user, where the file can't be read: "FILE: why", or "FILE:LINE: what is wrong".
	static TOptional<FPlayScript> Load(const FString& File, FString& OutError);
	static TOptional<FPlayScript> Parse(const FString& File, const FString& Text, FString& OutError);
};
