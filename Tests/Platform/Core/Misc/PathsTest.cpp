// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Misc/Paths.h"
#include "Misc/FileHelper.h"
#include "Support/Printers.h"
#include "Support/TempFolder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

TEST(PathsTest, TakesPathsApartAndTogether)
{
	EXPECT_TEXT(FPaths::Combine(TEXT("/a"), TEXT("b/"), FString(TEXT("c.txt"))), TEXT("/a/b/c.txt"));
	EXPECT_TEXT(FPaths::GetPath(TEXT("/a/b.c/d.txt")), TEXT("/a/b.c"));
	EXPECT_TEXT(FPaths::GetPath(TEXT("d.txt")), TEXT(""));
	EXPECT_TEXT(FPaths::GetCleanFilename(TEXT("/a/b.c/d.txt")), TEXT("d.txt"));
	EXPECT_TEXT(FPaths::GetBaseFilename(TEXT("/a/b.c/d.txt")), TEXT("d"));
	EXPECT_TEXT(FPaths::GetBaseFilename(TEXT("/a/b.c/d")), TEXT("d"));
	EXPECT_TEXT(FPaths::GetExtension(TEXT("/a/b.c/d.txt")), TEXT("txt"));
	EXPECT_TEXT(FPaths::GetExtension(TEXT("/a/b.c/d")), TEXT(""));
	EXPECT_TEXT(FPaths::ConvertRelativePathToFull(TEXT("/a/./b/../c")), TEXT("/a/c"));
	EXPECT_FALSE(FPaths::IsRelative(FPaths::ConvertRelativePathToFull(TEXT("x"))));
}

class FileHelperTest : public testing::Test
{
protected:
	void WriteBytes(const std::string& Bytes)
	{
		std::filesystem::create_directories(TCHAR_TO_UTF8(FPaths::GetPath(FileName)));
		std::ofstream(TCHAR_TO_UTF8(FileName), std::ios::binary) << Bytes;
	}

	const FTempFolder TempFolder;
	const FString& Folder = TempFolder.GetPath();
	const FString FileName = Folder / TEXT("deep") / TEXT("\u00E4.txt");
};

TEST_F(FileHelperTest, ReadsWhatItWrote)
{
	const FString Text = TEXT("line\r\n\u20AC\U0001F600");
	EXPECT_FALSE(FPaths::FileExists(FileName));
	EXPECT_TRUE(FFileHelper::SaveStringToFile(Text, *FileName));
	EXPECT_TRUE(FPaths::FileExists(FileName));
	EXPECT_FALSE(FPaths::FileExists(Folder));
	FString Read;
	EXPECT_TRUE(FFileHelper::LoadFileToString(Read, *FileName));
	EXPECT_TEXT(Read, Text);
	EXPECT_TRUE(FFileHelper::SaveStringToFile(TEXT("short"), *FileName));
	EXPECT_TRUE(FFileHelper::LoadFileToString(Read, *FileName));
	EXPECT_TEXT(Read, TEXT("short"));
}

TEST_F(FileHelperTest, SkipsAByteOrderMarkAndReplacesInvalidBytes)
{
	FString Read;
	WriteBytes("\xEF\xBB\xBF"
			   "a\xFF");
	EXPECT_TRUE(FFileHelper::LoadFileToString(Read, *FileName));
	EXPECT_TEXT(Read, TEXT("a\uFFFD"));
	WriteBytes("");
	EXPECT_TRUE(FFileHelper::LoadFileToString(Read, *FileName));
	EXPECT_TEXT(Read, TEXT(""));
}

TEST_F(FileHelperTest, FailsWithoutTouchingTheResult)
{
	FString Read = TEXT("kept");
	EXPECT_FALSE(FFileHelper::LoadFileToString(Read, *FileName));
	WriteBytes("x");
	EXPECT_FALSE(FFileHelper::LoadFileToString(Read, *Folder));
	EXPECT_TEXT(Read, TEXT("kept"));
	EXPECT_FALSE(FFileHelper::SaveStringToFile(TEXT("x"), *Folder));
	EXPECT_FALSE(FFileHelper::SaveStringToFile(TEXT("x"), *(FileName / TEXT("below a file"))));
}
