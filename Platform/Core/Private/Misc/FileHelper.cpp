// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Misc/FileHelper.h"
#include "Containers/StringConv.h"

#include <filesystem>
#include <fstream>
#include <sstream>

bool FFileHelper::LoadFileToString(FString& Result, const TCHAR* Filename)
{
	const std::filesystem::path Path(TCHAR_TO_UTF8(Filename));
	std::error_code Error;
	std::ifstream File(Path, std::ios::binary);
	if (!File || std::filesystem::is_directory(Path, Error))
	{
		return false;
	}
	std::ostringstream Content;
	Content << File.rdbuf();
	std::string Bytes = ::MoveTemp(Content).str();
	if (File.bad() || Bytes.size() > static_cast<SIZE_T>(MAX_int32))
	{
		return false;
	}
	const SIZE_T MarkLength = Bytes.starts_with("\xEF\xBB\xBF") ? 3 : 0;
	Result = FString(FStringView(FUTF8ToTCHAR(Bytes.data() + MarkLength, static_cast<int32>(Bytes.size() - MarkLength))));
	return true;
}

bool FFileHelper::SaveStringToFile(FStringView String, const TCHAR* Filename)
{
	const std::filesystem::path Path(TCHAR_TO_UTF8(Filename));
	std::error_code Error;
	if (Path.has_parent_path())
	{
		std::filesystem::create_directories(Path.parent_path(), Error);
	}
	std::ofstream File(Path, std::ios::binary | std::ios::trunc);
	const FTCHARToUTF8 Bytes(String);
	File.write(Bytes.Get(), Bytes.Length());
	File.close();
	return !File.fail();
}
