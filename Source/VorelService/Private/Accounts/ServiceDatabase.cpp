// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Accounts/ServiceDatabase.h"

#include "Accounts/ServiceSchema.h"
#include "Store/StoreSchema.h"

#include <cctype>
#include <fcntl.h>
#include <unistd.h>

namespace
{
FString ToFile(const std::string& File)
{
	return File.empty() ? FString(TEXT(":memory:")) : FString(File.c_str());
}

// SQLite gives the log beside the file the same rights.
const std::string& MakePrivate(const std::string& File)
{
	constexpr mode_t OwnerAlone = 0600;
	const int Descriptor = File.empty() ? -1 : ::open(File.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, OwnerAlone);
	if (Descriptor >= 0)
	{
		::close(Descriptor);
	}
	return File;
}
} // namespace

FServiceDatabase::FServiceDatabase(const std::string& File)
	: Database(ToFile(MakePrivate(File)), true)
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
