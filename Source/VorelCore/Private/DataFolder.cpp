// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "DataFolder.h"

#include "Misc/Paths.h"
#include <cstdlib>
#include <filesystem>
#include <sys/stat.h>

namespace
{
FString& GetChosenFolder()
{
	static FString Folder;
	return Folder;
}

// An environment variable that names an absolute path, or nothing: the rules for base directories ignore any other.
FString GetFolderVariable(const ANSICHAR* Name)
{
	const ANSICHAR* Value = std::getenv(Name);
	const FString Folder(Value ? Value : "");
	return FPaths::IsRelative(Folder) ? FString() : Folder;
}
} // namespace

void FDataFolder::Set(const FString& Path)
{
	GetChosenFolder() = Path.IsEmpty() ? Path : FPaths::ConvertRelativePathToFull(Path);
}

FString FDataFolder::Get()
{
	return GetChosenFolder().IsEmpty() ? GetDefault(TEXT("vorel-ai")) : GetChosenFolder();
}

FString FDataFolder::GetDefault(const FString& ProgramName)
{
	const FString DataHome = GetFolderVariable("XDG_DATA_HOME");
	if (!DataHome.IsEmpty())
	{
		return DataHome / ProgramName;
	}
	const FString Home = GetFolderVariable("HOME");
	return Home.IsEmpty() ? FString() : Home / TEXT(".local/share") / ProgramName;
}

bool FDataFolder::Create(FString& OutError)
{
	const FString Folder = Get();
	if (Folder.IsEmpty())
	{
		OutError = TEXT("There is no folder for data: neither XDG_DATA_HOME nor HOME names one. Choose one with --data-dir.");
		return false;
	}
	const std::filesystem::path Path(*Folder);
	std::error_code Error;
	std::filesystem::create_directories(Path.parent_path(), Error);
	if (!Error && ::mkdir(Path.c_str(), S_IRWXU) != 0 && !std::filesystem::is_directory(Path))
	{
		Error = std::error_code(errno, std::generic_category());
	}
	if (Error)
	{
		OutError = FString::Printf(TEXT("The folder for data %s can't be made: %hs."), *Folder, Error.message().c_str());
		return false;
	}
	return true;
}
