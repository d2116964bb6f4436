// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Misc/Paths.h"
#include "Misc/FileHelper.h"
#include "Support/Printers.h"
#include "Support/TempFolder.h"

#include <gtest/gtest.h>

TEST(PathsTest, TakesPathsApartAndTogether)
{
	EXPECT_TEXT(FPaths::Combine(TEXT("/a"), TEXT("b/"), FString(TEXT("c.txt"))), TEXT("/a/b/c.txt"));
	EXPECT_TEXT(FPaths::GetPath(TEXT("/a/b.c/d.txt")), TEXT("/a/b.c"));
	EXPECT_TEXT(FPaths::GetCleanFilename(TEXT("/a/b.c/d.txt")), TEXT("d.txt"));
	EXPECT_TEXT(FPaths::GetBaseFilename(TEXT("/a/b.c/d.txt")), TEXT("d"));
	EXPECT_TEXT(FPaths::GetExtension(TEXT("/a/b.c/d")), TEXT(""));
	EXPECT_TEXT(FPaths::ConvertRelativePathToFull(TEXT("/a/./b/../c")), TEXT("/a/c"));
	EXPECT_FALSE(FPaths::IsRelative(FPaths::ConvertRelativePathToFull(TEXT("x"))));
}

TEST(FileHelperTest, ReadsWhatItWroteWhateverItIsAndFailsWithoutTouchingTheResult)
{
	const FTempFolder Folder;
	const FString FileName = Folder.GetPath(TEXT("deep/\u00E4.txt"));
	FString Read = TEXT("kept");
	EXPECT_FALSE(FFileHelper::LoadFileToString(Read, *FileName));
	EXPECT_FALSE(FFileHelper::LoadFileToString(Read, *Folder.GetPath()));
	EXPECT_TEXT(Read, TEXT("kept"));
	for (const TCHAR* Text : {TEXT("line\r\n\u20AC\U0001F600"), TEXT("short"), TEXT("")})
	{
		EXPECT_TRUE(FFileHelper::SaveStringToFile(Text, *FileName));
		EXPECT_TRUE(FFileHelper::LoadFileToString(Read, *FileName));
		EXPECT_TEXT(Read, Text);
	}
	EXPECT_TRUE(FPaths::FileExists(FileName));
	EXPECT_FALSE(FPaths::FileExists(Folder.GetPath()));
	EXPECT_FALSE(FFileHelper::SaveStringToFile(TEXT("x"), *Folder.GetPath()));
	EXPECT_FALSE(FFileHelper::SaveStringToFile(TEXT("x"), *(FileName / TEXT("below a file"))));

	Folder.Write(TEXT("marked.txt"), "\xEF\xBB\xBF\x61\xFF");
	EXPECT_TRUE(FFileHelper::LoadFileToString(Read, *Folder.GetPath(TEXT("marked.txt"))));
	EXPECT_TEXT(Read, TEXT("a\uFFFD"));
}
