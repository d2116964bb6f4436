// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Store/StoreSchema.h"

#include "Store/SqliteDatabase.h"

namespace
{
int64 ReadVersion(FSqliteDatabase& Database)
{
	return Database.ReadNumber("PRAGMA user_version");
}

void CheckStore(FSqliteDatabase& Database, const FStoreSchema& Schema)
{
	const bool bEmpty = Database.ReadNumber("SELECT count(*) FROM sqlite_schema") == 0;
	if (!bEmpty && Database.ReadNumber("PRAGMA application_id") != Schema.ApplicationId)
	{
		throw FStoreError{EStoreProblem::Foreign, FString()};
	}
	const int64 Version = ReadVersion(Database);
	if (Version > Schema.Migrations.Num())
	{
		throw FStoreError{EStoreProblem::NewerVersion, FString()};
	}
	if (Version < 0 || (Version == 0 && !bEmpty))
	{
		throw FStoreError{EStoreProblem::Damaged, FString::Printf(TEXT("its version is %lld"), Version)};
	}
	if (Database.IsReadOnly())
	{
		throw FStoreError{EStoreProblem::ReadOnly, FString()};
	}
	const FString Finding = Database.ReadText("PRAGMA quick_check(1)");
	if (Finding != TEXT("ok"))
	{
		throw FStoreError{EStoreProblem::Damaged, Finding};
	}
}

void RunMigration(FSqliteDatabase& Database, int32 OldVersion, const FStoreSchema& Schema)
{
	FSqliteTransaction Transaction(Database);
	// Another program may have been quicker.
	if (ReadVersion(Database) == OldVersion)
	{
		Database.Execute(Schema.Migrations[OldVersion]);
		Database.Execute(TCHAR_TO_UTF8(
			FString::Printf(TEXT("PRAGMA application_id = %d; PRAGMA user_version = %d"), Schema.ApplicationId, OldVersion + 1)));
	}
	Transaction.Commit();
}
} // namespace

void PrepareStore(FSqliteDatabase& Database, const FString& File, const FStoreSchema& Schema)
{
	CheckStore(Database, Schema);
	ConfigureStore(Database);
	const int32 OldVersion = static_cast<int32>(ReadVersion(Database));
	if (OldVersion > 0 && OldVersion < Schema.Migrations.Num())
	{
		Database.BackUpTo(FString::Printf(TEXT("%s.version-%d"), *File, OldVersion));
	}
	for (int32 Version = OldVersion; Version < Schema.Migrations.Num(); ++Version)
	{
		RunMigration(Database, Version, Schema);
	}
	Database.MergeLogOnClose();
}

void ConfigureStore(FSqliteDatabase& Database)
{
	// A message that was shown must be there after a loss of power too, so each commit reaches the disk. A file system that can't keep a
	// write-ahead log keeps the journal it has.
	Database.Execute("PRAGMA trusted_schema = OFF; PRAGMA foreign_keys = ON; PRAGMA synchronous = FULL");
	Database.ExecutePatiently("PRAGMA journal_mode = WAL");
}
