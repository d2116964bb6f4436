// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// What is remembered of a version feed from one run to the next. Programs that share the file may overwrite each other's notes: then one
// of them asks once more than it had to.
struct FVersionFeedNote
{
	static constexpr const TCHAR* FileName = TEXT("version-feed.json");

	// Which service's feed this is about.
	FString Feed{};
	// When it was last asked, in seconds since 1970, whether or not it answered.
	int64 AskedAt = 0;
	// What it last announced; empty where it never did.
	FString Version{};

	// Empty where the file is missing or holds anything else, as where no file is named.
	static FVersionFeedNote Load(const FString& File);
	// Whole or not at all, for the user alone. A folder that can't be written to is none of the user's business.
	void Save(const FString& File) const;

	// Within the last day. A time to come is the mark of a clock that was wrong.
	bool IsOfToday(const FString& InFeed, int64 Now) const;
};
