// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/TempFolder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

FTempFolder::FTempFolder()
{
	std::string Pattern = std::filesystem::temp_directory_path() / "vorel-test-XXXXXX";
	check(mkdtemp(Pattern.data()) != nullptr);
	Path = FString(Pattern.c_str());
}

FTempFolder::~FTempFolder()
{
	std::error_code Error;
	std::filesystem::remove_all(TCHAR_TO_UTF8(Path), Error);
}

void FTempFolder::Write(const TCHAR* Name, std::string_view Bytes) const
{
	std::ofstream(TCHAR_TO_UTF8(GetPath(Name)), std::ios::binary) << Bytes;
}

std::string FTempFolder::Read(const TCHAR* Name) const
{
	std::ifstream File(TCHAR_TO_UTF8(GetPath(Name)), std::ios::binary);
	return std::string(std::istreambuf_iterator<char>(File), {});
}
