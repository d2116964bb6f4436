// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// A version by semver.org 2.0.0. Its numbers have no greatest one.
class FSemanticVersion
{
public:
	// Unset for what is no such version.
	static TOptional<FSemanticVersion> Parse(const FString& Text);

	// By precedence, in which the build metadata doesn't count.
	bool IsNewerThan(const FSemanticVersion& Other) const;

private:
	// Major, minor and patch as digits.
	TArray<FString> Numbers;
	// Empty for a release.
	TArray<FString> PreRelease;
};
