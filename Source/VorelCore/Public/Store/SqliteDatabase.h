// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Store/StoreError.h"
#include <string>

struct sqlite3;
struct sqlite3_stmt;

// One connection. What fails throws an FStoreError; those who use it catch them all.
class FSqliteDatabase
{
public:
	// Stands for a file, for as long as the connection lives.
	static const TCHAR* const InMemory;

	// Without bCreate the file must be there; a new one is for its owner alone. Neither opening nor closing changes it.
	FSqliteDatabase(const FString& File, bool bCreate);
	~FSqliteDatabase();
	FSqliteDatabase(const FSqliteDatabase&) = delete;
	FSqliteDatabase& operator=(const FSqliteDatabase&) = delete;

	// One or more statements whose rows nobody wants.
	void Execute(const char* Sql);
	// For one that fails at once where another program works on the file, instead of waiting as all others do.
	void ExecutePatiently(const char* Sql);
	// The first column of the first row.
	int64 ReadNumber(const char* Sql);
	FString ReadText(const char* Sql);

	bool IsReadOnly() const;
	// Of the last statement that changed rows.
	bool HasChangedRows() const;
	int64 GetLastInsertedRow() const;

	// The last connection puts what the write-ahead log holds into the file, and deletes the log.
	void MergeLogOnClose();

	// Of a consistent state, also while others write. The target is replaced once all is there.
	void BackUpTo(const FString& File);

	sqlite3* Get() const { return Connection; }
	[[noreturn]] void Throw(int Code) const;

private:
	void CopyTo(const FString& NewFile);

	sqlite3* Connection = nullptr;
};

// Prepared once, run often: bind all parameters, then run, or read row by row.
class FSqliteStatement
{
public:
	FSqliteStatement(FSqliteDatabase& InDatabase, const char* Sql);
	~FSqliteStatement();
	FSqliteStatement(const FSqliteStatement&) = delete;
	FSqliteStatement& operator=(const FSqliteStatement&) = delete;

	// In the order of the parameters.
	template <typename... ArgTypes>
	FSqliteStatement& Bind(const ArgTypes&... Args)
	{
		int Index = 0;
		(BindOne(++Index, Args), ...);
		return *this;
	}

	void Run();
	// False behind the last row, after which the statement can be run again.
	bool Next();
	// To be called where not all rows were read.
	void Reset();

	int64 GetNumber(int Column) const;
	bool IsNull(int Column) const;
	FString GetText(int Column) const;
	std::string GetUtf8(int Column) const;
	double GetReal(int Column) const;

private:
	void BindOne(int Index, int64 Number);
	void BindOne(int Index, const FString& Text);
	// In UTF-8.
	void BindOne(int Index, const std::string& Text);
	void BindOne(int Index, const TOptional<int64>& Number);

	FSqliteDatabase& Database;
	sqlite3_stmt* Statement = nullptr;
};

// Takes the right to write at once, and gives everything back unless it is committed.
class FSqliteTransaction
{
public:
	explicit FSqliteTransaction(FSqliteDatabase& InDatabase);
	~FSqliteTransaction();
	FSqliteTransaction(const FSqliteTransaction&) = delete;
	FSqliteTransaction& operator=(const FSqliteTransaction&) = delete;

	void Commit();

private:
	FSqliteDatabase& Database;
	bool bOpen = true;
};
