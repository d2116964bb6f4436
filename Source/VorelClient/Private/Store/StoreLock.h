// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// Held by every running program that has a store open, in an empty file beside it. The database's own locks belong to a file; this one
// belongs to its name, so that nobody gives another file that name under a program that still writes to the old one.
class FStoreLock
{
public:
	// Not held where the file system does not let it be.
	explicit FStoreLock(const FString& File);
	~FStoreLock();
	FStoreLock(const FStoreLock&) = delete;
	FStoreLock& operator=(const FStoreLock&) = delete;

	// Alone where nobody else holds it, else together with others, after those who hold it alone for the moment of their start.
	void Take();

	// Lets others take it too.
	void Share();

	bool IsAlone() const { return bAlone; }

private:
	int Descriptor = -1;
	bool bAlone = false;
};
