// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Support/LogCapture.h"
#include "Support/Printers.h"
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>

// A test with a folder of its own, which goes afterwards.
class FFolderTest : public testing::Test
{
protected:
	FFolderTest()
	{
		std::string Pattern = (std::filesystem::temp_directory_path() / "vorel-core-XXXXXX").string();
		check(::mkdtemp(Pattern.data()));
		Folder = Pattern;
	}

	~FFolderTest() override { std::filesystem::remove_all(Folder); }

	FString InFolder(const char* Name) const { return FString((Folder / Name).c_str()); }

	void Write(const char* Name, std::string_view Text) const { std::ofstream(Folder / Name) << Text; }

	std::filesystem::path Folder;
};
