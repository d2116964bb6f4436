// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Store/StoreSchema.h"

#include "Store/SqliteDatabase.h"

namespace
{
// Marks a database as ours.
constexpr int64 ApplicationId = 0x566F7265;

// Rows are numbered in order of time. A number is never used again, since another program may still be writing to a row that is gone.
const char* const FirstVersion = R"(
PRAGMA application_id = 0x566F7265;
CREATE TABLE conversations(
	id TEXT NOT NULL COLLATE NOCASE PRIMARY KEY,
	title TEXT NOT NULL,
	mode TEXT NOT NULL,
	created INTEGER NOT NULL,
	last_used INTEGER NOT NULL
) STRICT, WITHOUT ROWID;
CREATE TABLE messages(
	id INTEGER PRIMARY KEY AUTOINCREMENT,
	conversation TEXT NOT NULL COLLATE NOCASE REFERENCES conversations(id) ON DELETE CASCADE,
	role INTEGER NOT NULL,
	text TEXT NOT NULL,
	ending INTEGER
) STRICT;
CREATE INDEX messages_by_conversation ON messages(conversation, id);
CREATE INDEX growing_messages ON messages(id) WHERE ending IS NULL;
)";

int64 ReadVersion(FSqliteDatabase& Database)
{
	return Database.ReadNumber("PRAGMA user_version");
}

void CheckStore(FSqliteDatabase& Database, int32 NewestVersion)
{
	const bool bEmpty = Database.ReadNumber("SELECT count(*) FROM sqlite_schema") == 0;
	if (!bEmpty && Database.ReadNumber("PRAGMA application_id") != ApplicationId)
	{
		throw FStoreError{EStoreProblem::Foreign, FString()};
	}
	const int64 Version = ReadVersion(Database);
	if (Version > NewestVersion)
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

void RunMigration(FSqliteDatabase& Database, int32 OldVersion, const char* Sql)
{
	FSqliteTransaction Transaction(Database);
	// Another program may have been quicker.
	if (ReadVersion(Database) == OldVersion)
	{
		Database.Execute(Sql);
		Database.Execute(TCHAR_TO_UTF8(FString::Printf(TEXT("PRAGMA user_version = %d"), OldVersion + 1)));
	}
	Transaction.Commit();
}
} // namespace

const TArray<const char*>& GetStoreMigrations()
{
	static const TArray<const char*> Migrations = {FirstVersion};
	return Migrations;
}

void PrepareStore(FSqliteDatabase& Database, const FString& File, const TArray<const char*>& Migrations)
{
	CheckStore(Database, Migrations.Num());
	ConfigureStore(Database);
	const int32 OldVersion = static_cast<int32>(ReadVersion(Database));
	if (OldVersion > 0 && OldVersion < Migrations.Num())
	{
		Database.BackUpTo(FString::Printf(TEXT("%s.version-%d"), *File, OldVersion));
	}
	for (int32 Version = OldVersion; Version < Migrations.Num(); ++Version)
	{
		RunMigration(Database, Version, Migrations[Version]);
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
