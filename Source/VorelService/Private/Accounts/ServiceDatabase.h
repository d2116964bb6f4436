// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Store/SqliteDatabase.h"

#include <mutex>

// The service's file: one connection, for one thread at a time. Work that fails throws an FStoreError.
class FServiceDatabase
{
public:
	// Makes the file where it is missing, for its owner alone. Empty: in memory.
	explicit FServiceDatabase(const std::string& File);

	// Work takes the connection and returns a value.
	template <typename WorkType>
	auto Read(WorkType Work)
	{
		const std::lock_guard<std::mutex> Lock(Mutex);
		return Work(Database);
	}

	// All of the work, or none of it where it throws; alone among all programs that use the file.
	template <typename WorkType>
	auto Write(WorkType Work)
	{
		const std::lock_guard<std::mutex> Lock(Mutex);
		FSqliteTransaction Transaction(Database);
		auto Result = Work(Database);
		Transaction.Commit();
		return Result;
	}

private:
	std::mutex Mutex;
	FSqliteDatabase Database;
};

// A sentence for people, which does not say where the file is.
std::string DescribeDataFile(const FStoreError& Error);

// Null with a sentence for people in OutError.
std::unique_ptr<FServiceDatabase> OpenServiceDatabase(const std::string& File, std::string& OutError);
