// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Store/SqliteDatabase.h"

#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <sqlite3.h>
#include <thread>
#include <unistd.h>

namespace
{
// Other programs hold the file for moments only.
constexpr int BusyTimeoutMilliseconds = 1000;

EStoreProblem FindProblem(int Code)
{
	// The shared memory beside a write-ahead log can't grow.
	if (Code == SQLITE_IOERR_SHMSIZE)
	{
		return EStoreProblem::Full;
	}
	switch (Code & 0xFF)
	{
	case SQLITE_BUSY:
	case SQLITE_LOCKED:
		return EStoreProblem::Locked;
	case SQLITE_READONLY:
	case SQLITE_PERM:
	case SQLITE_AUTH:
		return EStoreProblem::ReadOnly;
	case SQLITE_FULL:
		return EStoreProblem::Full;
	case SQLITE_CONSTRAINT:
		return EStoreProblem::Conflict;
	case SQLITE_CORRUPT:
	case SQLITE_NOTADB:
	case SQLITE_FORMAT:
		return EStoreProblem::Damaged;
	default:
		return EStoreProblem::Other;
	}
}

// SQLite gives what it puts beside the file the same rights.
void CreateForOwnerAlone(const FString& File)
{
	constexpr mode_t OwnerAlone = 0600;
	const int Descriptor = ::open(TCHAR_TO_UTF8(File), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, OwnerAlone);
	if (Descriptor >= 0)
	{
		::close(Descriptor);
	}
}
} // namespace

const TCHAR* const FSqliteDatabase::InMemory = TEXT(":memory:");

FSqliteDatabase::FSqliteDatabase(const FString& File, bool bCreate)
{
	if (bCreate && !File.Equals(InMemory))
	{
		CreateForOwnerAlone(File);
	}
	const int Flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE | (bCreate ? SQLITE_OPEN_CREATE : 0);
	const int Code = sqlite3_open_v2(TCHAR_TO_UTF8(File), &Connection, Flags, nullptr);
	if (Code != SQLITE_OK)
	{
		const FStoreError Error{FindProblem(Code), FString(sqlite3_errmsg(Connection))};
		sqlite3_close(Connection);
		throw Error;
	}
	sqlite3_busy_timeout(Connection, BusyTimeoutMilliseconds);
	sqlite3_db_config(Connection, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
}

FSqliteDatabase::~FSqliteDatabase()
{
	verify(sqlite3_close(Connection) == SQLITE_OK);
}

void FSqliteDatabase::Execute(const char* Sql)
{
	const int Code = sqlite3_exec(Connection, Sql, nullptr, nullptr, nullptr);
	if (Code != SQLITE_OK)
	{
		Throw(Code);
	}
}

void FSqliteDatabase::ExecutePatiently(const char* Sql)
{
	const auto End = std::chrono::steady_clock::now() + std::chrono::milliseconds(BusyTimeoutMilliseconds);
	while (const int Code = sqlite3_exec(Connection, Sql, nullptr, nullptr, nullptr))
	{
		if (FindProblem(Code) != EStoreProblem::Locked || std::chrono::steady_clock::now() >= End)
		{
			Throw(Code);
		}
		std::this_thread::sleep_for(std::chrono::milliseconds(5));
	}
}

int64 FSqliteDatabase::ReadNumber(const char* Sql)
{
	FSqliteStatement Statement(*this, Sql);
	return Statement.Next() ? Statement.GetNumber(0) : 0;
}

FString FSqliteDatabase::ReadText(const char* Sql)
{
	FSqliteStatement Statement(*this, Sql);
	return Statement.Next() ? Statement.GetText(0) : FString();
}

bool FSqliteDatabase::IsReadOnly() const
{
	return sqlite3_db_readonly(Connection, "main") == 1;
}

bool FSqliteDatabase::HasChangedRows() const
{
	return sqlite3_changes(Connection) > 0;
}

int64 FSqliteDatabase::GetLastInsertedRow() const
{
	return sqlite3_last_insert_rowid(Connection);
}

void FSqliteDatabase::MergeLogOnClose()
{
	sqlite3_db_config(Connection, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 0, nullptr);
}

void FSqliteDatabase::BackUpTo(const FString& File)
{
	const std::string Unfinished = TCHAR_TO_UTF8(File + TEXT(".unfinished"));
	std::error_code Error;
	std::filesystem::remove(Unfinished, Error);
	CopyTo(FString(Unfinished.c_str()));
	std::filesystem::rename(Unfinished, TCHAR_TO_UTF8(File), Error);
	if (Error)
	{
		throw FStoreError{EStoreProblem::Other, FString(Error.message().c_str())};
	}
}

void FSqliteDatabase::CopyTo(const FString& NewFile)
{
	FSqliteDatabase Target(NewFile, true);
	sqlite3_backup* const Backup = sqlite3_backup_init(Target.Get(), "main", Connection, "main");
	if (!Backup)
	{
		Target.Throw(sqlite3_errcode(Target.Get()));
	}
	constexpr int AllPages = -1;
	const int Code = sqlite3_backup_step(Backup, AllPages);
	sqlite3_backup_finish(Backup);
	if (Code != SQLITE_DONE)
	{
		Target.Throw(Code);
	}
}

void FSqliteDatabase::Throw(int Code) const
{
	throw FStoreError{FindProblem(Code), FString(sqlite3_errmsg(Connection))};
}

FSqliteStatement::FSqliteStatement(FSqliteDatabase& InDatabase, const char* Sql)
	: Database(InDatabase)
{
	const int Code = sqlite3_prepare_v3(Database.Get(), Sql, -1, SQLITE_PREPARE_PERSISTENT, &Statement, nullptr);
	if (Code != SQLITE_OK)
	{
		Database.Throw(Code);
	}
}

FSqliteStatement::~FSqliteStatement()
{
	sqlite3_finalize(Statement);
}

void FSqliteStatement::Run()
{
	while (Next())
	{
	}
}

bool FSqliteStatement::Next()
{
	const int Code = sqlite3_step(Statement);
	if (Code == SQLITE_ROW)
	{
		return true;
	}
	if (Code != SQLITE_DONE)
	{
		const FStoreError Error{FindProblem(Code), FString(sqlite3_errmsg(Database.Get()))};
		Reset();
		throw Error;
	}
	Reset();
	return false;
}

void FSqliteStatement::Reset()
{
	sqlite3_reset(Statement);
}

int64 FSqliteStatement::GetNumber(int Column) const
{
	return sqlite3_column_int64(Statement, Column);
}

bool FSqliteStatement::IsNull(int Column) const
{
	return sqlite3_column_type(Statement, Column) == SQLITE_NULL;
}

FString FSqliteStatement::GetText(int Column) const
{
	const std::string Text = GetUtf8(Column);
	return FString(FStringView(FUTF8ToTCHAR(Text.c_str(), static_cast<int32>(Text.size()))));
}

std::string FSqliteStatement::GetUtf8(int Column) const
{
	const auto* const Bytes = reinterpret_cast<const char*>(sqlite3_column_text(Statement, Column));
	return Bytes ? std::string(Bytes, sqlite3_column_bytes(Statement, Column)) : std::string();
}

double FSqliteStatement::GetReal(int Column) const
{
	return sqlite3_column_double(Statement, Column);
}

void FSqliteStatement::BindOne(int Index, int64 Number)
{
	sqlite3_bind_int64(Statement, Index, Number);
}

void FSqliteStatement::BindOne(int Index, const FString& Text)
{
	const FTCHARToUTF8 Bytes(Text);
	sqlite3_bind_text(Statement, Index, Bytes.Get(), Bytes.Length(), SQLITE_TRANSIENT);
}

void FSqliteStatement::BindOne(int Index, const std::string& Text)
{
	sqlite3_bind_text(Statement, Index, Text.data(), static_cast<int>(Text.size()), SQLITE_TRANSIENT);
}

void FSqliteStatement::BindOne(int Index, const TOptional<int64>& Number)
{
	Number ? sqlite3_bind_int64(Statement, Index, *Number) : sqlite3_bind_null(Statement, Index);
}

FSqliteTransaction::FSqliteTransaction(FSqliteDatabase& InDatabase)
	: Database(InDatabase)
{
	Database.Execute("BEGIN IMMEDIATE");
}

FSqliteTransaction::~FSqliteTransaction()
{
	// SQLite may have rolled back by itself.
	if (bOpen && !sqlite3_get_autocommit(Database.Get()))
	{
		sqlite3_exec(Database.Get(), "ROLLBACK", nullptr, nullptr, nullptr);
	}
}

void FSqliteTransaction::Commit()
{
	Database.Execute("COMMIT");
	bOpen = false;
}
