// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

enum class EStoreProblem : uint8
{
	None,
	Missing,
	Locked,
	ReadOnly,
	Full,
	Damaged,
	NewerVersion,
	// A database, but somebody else's.
	Foreign,
	// What was to be added is there already, or what was to be changed is gone.
	Conflict,
	Other
};

// Why the store could not do what it was asked for.
struct FStoreError
{
	EStoreProblem Problem = EStoreProblem::None;
	// In the words of the database, for the log.
	FString Detail;

	explicit operator bool() const { return Problem != EStoreProblem::None; }

	// A sentence for the user, without what comes of it.
	FText Describe(const FString& File) const;
};
