// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Misc/Paths.h"
#include "Containers/StringConv.h"

#include <filesystem>

namespace fs = std::filesystem;

static fs::path ToPath(const FString& InPath)
{
	return fs::path(TCHAR_TO_UTF8(InPath));
}

static FString FindProjectDir()
{
	std::error_code Error;
	const fs::path Program = fs::read_symlink("/proc/self/exe", Error);
	for (fs::path Folder = Program.parent_path(); Folder.has_relative_path(); Folder = Folder.parent_path())
	{
		if (fs::exists(Folder / "VorelAI.uplugin", Error))
		{
			return FString(Folder.c_str());
		}
	}
	return FString();
}

const FString& FPaths::ProjectDir()
{
	static const FString Folder = FindProjectDir();
	return Folder;
}

FString FPaths::EngineContentDir()
{
	return Combine(ProjectDir(), TEXT("Platform/Content"));
}

bool FPaths::FileExists(const FString& InPath)
{
	std::error_code Error;
	return fs::is_regular_file(ToPath(InPath), Error);
}

FString FPaths::GetPath(const FString& InPath)
{
	int32 Slash;
	return InPath.FindLastChar(TEXT('/'), Slash) ? InPath.Left(Slash) : FString();
}

FString FPaths::GetCleanFilename(const FString& InPath)
{
	int32 Slash;
	return InPath.FindLastChar(TEXT('/'), Slash) ? InPath.RightChop(Slash + 1) : InPath;
}

FString FPaths::GetBaseFilename(const FString& InPath)
{
	const FString Name = GetCleanFilename(InPath);
	int32 Dot;
	return Name.FindLastChar(TEXT('.'), Dot) ? Name.Left(Dot) : Name;
}

FString FPaths::GetExtension(const FString& InPath)
{
	const FString Name = GetCleanFilename(InPath);
	int32 Dot;
	return Name.FindLastChar(TEXT('.'), Dot) ? Name.RightChop(Dot + 1) : FString();
}

FString FPaths::ConvertRelativePathToFull(const FString& InPath)
{
	std::error_code Error;
	return FString(fs::absolute(ToPath(InPath), Error).lexically_normal().c_str());
}
