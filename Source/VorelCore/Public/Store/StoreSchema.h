// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/Array.h"

class FSqliteDatabase;
class FString;

struct FStoreSchema
{
	// Marks a database as one of this kind.
	int32 ApplicationId = 0;

	// The statements that lead from each version to the next; an empty file has version 0. A step that was ever published is never changed.
	TArray<const char*> Migrations;
};

// Makes a connection ready for use: checks whose file it is and that it is whole, and runs the missing steps, each in a transaction of its
// own. Unless it is new, the file is backed up before, beside it. Throws an FStoreError.
void PrepareStore(FSqliteDatabase& Database, const FString& File, const FStoreSchema& Schema);

// What every connection is set to.
void ConfigureStore(FSqliteDatabase& Database);
