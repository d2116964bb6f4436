// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "DataFolder.h"
#include "Support/Printers.h"
#include "Support/TempFolder.h"
#include <filesystem>
#include <gtest/gtest.h>

namespace
{
// Sets an environment variable, or unsets it for null, until the end of the scope.
class FVariable
{
public:
	FVariable(const char* InName, const char* Value)
		: Name(InName)
		, OldValue(::getenv(InName) ? TOptional<std::string>(::getenv(InName)) : TOptional<std::string>())
	{
		Set(Value);
	}

	~FVariable() { Set(OldValue ? OldValue->c_str() : nullptr); }

private:
	void Set(const char* Value) const { Value ? ::setenv(Name, Value, 1) : ::unsetenv(Name); }

	const char* Name;
	TOptional<std::string> OldValue;
};

class FDataFolderTest : public testing::Test
{
protected:
	~FDataFolderTest() override { FDataFolder::Set(FString()); }

	FTempFolder Folder;
};
} // namespace

TEST_F(FDataFolderTest, FollowsTheBaseDirectoryConvention)
{
	const FVariable Home("HOME", "/home/someone");
	{
		const FVariable DataHome("XDG_DATA_HOME", "/data");
		EXPECT_EQ(FDataFolder::Get(), TEXT("/data/vorel-ai"));
	}
	for (const char* Ignored : {static_cast<const char*>(nullptr), "", "relative/path"})
	{
		const FVariable DataHome("XDG_DATA_HOME", Ignored);
		EXPECT_EQ(FDataFolder::Get(), TEXT("/home/someone/.local/share/vorel-ai"));
	}
	FDataFolder::Set(TEXT("/elsewhere/x"));
	EXPECT_EQ(FDataFolder::Get(), TEXT("/elsewhere/x"));
}

TEST_F(FDataFolderTest, IsMadeOnDemandForItsOwnerAlone)
{
	FDataFolder::Set(Folder.GetPath(TEXT("a/b/c")));
	FString Error;
	for (int32 Time = 0; Time < 2; ++Time)
	{
		EXPECT_TRUE(FDataFolder::Create(Error)) << Error;
	}
	using enum std::filesystem::perms;
	EXPECT_EQ(std::filesystem::status(TCHAR_TO_UTF8(FDataFolder::Get())).permissions(), owner_all);
}

TEST_F(FDataFolderTest, TellsWhyItCantBeMade)
{
	Folder.Write(TEXT("file"), "");
	FString Error;
	FDataFolder::Set(Folder.GetPath(TEXT("file")));
	EXPECT_FALSE(FDataFolder::Create(Error));
	EXPECT_TRUE(Error.Contains(Folder.GetPath(TEXT("file")))) << Error;

	FDataFolder::Set(Folder.GetPath(TEXT("file/below")));
	EXPECT_FALSE(FDataFolder::Create(Error));

	FDataFolder::Set(FString());
	const FVariable Home("HOME", nullptr);
	const FVariable DataHome("XDG_DATA_HOME", nullptr);
	EXPECT_TRUE(FDataFolder::Get().IsEmpty());
	EXPECT_FALSE(FDataFolder::Create(Error));
	EXPECT_TRUE(Error.Contains(TEXT("--data-dir"))) << Error;
}
