// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Accounts/ServiceDatabase.h"

#include "Accounts/ServiceSchema.h"
#include "Store/StoreSchema.h"

#include <cctype>

static FString ToFile(const std::string& File)
{
	return File.empty() ? FString(FSqliteDatabase::InMemory) : FString(File.c_str());
}

FServiceDatabase::FServiceDatabase(const std::string& File)
	: Database(ToFile(File), true)
{
	PrepareStore(Database, ToFile(File), GetServiceSchema());
}

std::string DescribeDataFile(const FStoreError& Error)
{
	std::string Sentence = TCHAR_TO_UTF8(Error.Describe(TEXT("the service's data file")).ToString());
	Sentence.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(Sentence.front())));
	return Sentence;
}

std::unique_ptr<FServiceDatabase> OpenServiceDatabase(const std::string& File, std::string& OutError)
try
{
	return std::make_unique<FServiceDatabase>(File);
}
catch (const FStoreError& Error)
{
	OutError = TCHAR_TO_UTF8(Error.Describe(ToFile(File)).ToString());
	return nullptr;
}
