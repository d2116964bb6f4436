// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "DataFolder.h"
#include "Modules/ModuleManager.h"
#include "Support/LogCapture.h"
#include "Support/Printers.h"
#include "Support/TempFolder.h"
#include "VorelUserSettings.h"
#include <gtest/gtest.h>

namespace
{
class FVorelUserSettingsTest : public testing::Test
{
protected:
	~FVorelUserSettingsTest() override { Settings->Load(FString()); }

	// The warnings given, each without the path of the file.
	TArray<FString> Load(std::string_view Text)
	{
		Folder.Write(TEXT("settings.json"), Text);
		const FLogCapture Log;
		Settings->Load(Folder.GetPath(TEXT("settings.json")));
		TArray<FString> Warnings;
		for (const FLogCapture::FMessage& Message : Log.GetMessages())
		{
			EXPECT_EQ(Message.Category, FName(TEXT("LogVorel")));
			EXPECT_EQ(Message.Verbosity, ELogVerbosity::Warning);
			FString Warning = Message.Text;
			EXPECT_TRUE(Warning.RemoveFromStart(Folder.GetPath(TEXT("settings.json")))) << Warning;
			Warnings.Add(Warning);
		}
		return Warnings;
	}

	FTempFolder Folder;
	const TObjectPtr<UVorelUserSettings> Settings = UVorelUserSettings::Get();
};

using FWarnings = TArray<FString>;
} // namespace

TEST_F(FVorelUserSettingsTest, DefaultsStandWhereThereIsNoFile)
{
	const FLogCapture Log;
	Settings->Load(Folder.GetPath(TEXT("missing.json")));
	EXPECT_TRUE(Log.GetMessages().IsEmpty());
	EXPECT_EQ(Settings->GetValues().ConnectTimeoutSeconds, 10.0);
	EXPECT_EQ(Settings->GetValues().FirstByteTimeoutSeconds, 120.0);
	EXPECT_EQ(Settings->GetValues().IdleTimeoutSeconds, 60.0);
	EXPECT_TRUE(Settings->GetValues().AssistantUrl.IsEmpty());
	EXPECT_TRUE(UVorelSettings::Get() == TObjectPtr<UVorelSettings>(Settings));
}

TEST_F(FVorelUserSettingsTest, EveryEntryIsRead)
{
	EXPECT_EQ(Load(R"({"appUrl": "https://app.example/", "assistantUrl": "http://127.0.0.1:8080/v1", "assistantModel": "m\u00e9",
		"allowTokenFile": true, "connectTimeoutSeconds": 1, "firstByteTimeoutSeconds": 2.5, "idleTimeoutSeconds": 3600})"),
		FWarnings());
	const FVorelSettingsValues& Values = Settings->GetValues();
	EXPECT_EQ(Settings->GetAppUrl(), TEXT("https://app.example"));
	EXPECT_EQ(Values.AssistantUrl, TEXT("http://127.0.0.1:8080/v1"));
	EXPECT_EQ(Values.AssistantModel, TEXT("m\u00e9"));
	EXPECT_TRUE(Values.bAllowTokenFile);
	EXPECT_EQ(Values.ConnectTimeoutSeconds, 1.0);
	EXPECT_EQ(Values.FirstByteTimeoutSeconds, 2.5);
	EXPECT_EQ(Values.IdleTimeoutSeconds, 3600.0);
}

TEST_F(FVorelUserSettingsTest, TheAppAddressIsTheLocalServicesUnlessSet)
{
	Load("{}");
	Settings->SetDefaultAppUrl(TEXT("http://127.0.0.1:5000"));
	EXPECT_EQ(Settings->GetAppUrl(), TEXT("http://127.0.0.1:5000"));
	Load(R"({"appUrl": "http://other"})");
	EXPECT_EQ(Settings->GetAppUrl(), TEXT("http://other"));
}

TEST_F(FVorelUserSettingsTest, WrongEntriesAreReportedAndTheRestIsUsed)
{
	EXPECT_EQ(Load(R"({"colour": 1, "idleTimeoutSeconds": 5})"), FWarnings{TEXT(": the entry \"colour\" is unknown and ignored")});
	EXPECT_EQ(Settings->GetValues().IdleTimeoutSeconds, 5.0);

	for (const char* Wrong : {"0", "-1", "3600.5", "1e999", "\"10\"", "null", "true", "[]", "{}"})
	{
		const std::string Text = std::string("{\"connectTimeoutSeconds\": ") + Wrong + ", \"assistantModel\": \"m\"}";
		const FWarnings Warnings = Load(Text);
		ASSERT_EQ(Warnings.Num(), 1) << Wrong;
		EXPECT_EQ(Settings->GetValues().ConnectTimeoutSeconds, 10.0) << Wrong;
	}
	EXPECT_EQ(Load(R"({"connectTimeoutSeconds": 0})"),
		FWarnings{TEXT(": \"connectTimeoutSeconds\" is ignored, it must be a number of seconds above 0 and up to 3600")});
	for (const char* Wrong : {"\"\"", "\"ftp://x\"", "\"http://\"", "\"http:///x\"", "\"http://a b\"", "\"example.org\"", "7"})
	{
		EXPECT_EQ(Load(std::string("{\"appUrl\": ") + Wrong + "}"),
			FWarnings{TEXT(": \"appUrl\" is ignored, it must be an address that starts with http:// or https://")});
	}
	EXPECT_EQ(Load(R"({"allowTokenFile": "true"})"), FWarnings{TEXT(": \"allowTokenFile\" is ignored, it must be true or false")});
	EXPECT_FALSE(Settings->GetValues().bAllowTokenFile);
	EXPECT_EQ(Load(R"({"assistantModel": 7})"), FWarnings{TEXT(": \"assistantModel\" is ignored, it must be a text")});
}

TEST_F(FVorelUserSettingsTest, ABrokenFileIsReportedWithItsLineAndLeftAsItIs)
{
	const std::string Broken = "{\n\t\"appUrl\": \"http://x\",\n\t\"idleTimeoutSeconds\": oops\n}\n";
	EXPECT_EQ(Load(Broken), FWarnings{TEXT(":3: the file is ignored, it is not JSON from here on")});
	EXPECT_EQ(Load(""), FWarnings{TEXT(":1: the file is ignored, it is not JSON from here on")});
	EXPECT_EQ(Load("[1]"), FWarnings{TEXT(": the file is ignored, it must hold one JSON object")});
	EXPECT_EQ(Load(std::string(100000, '[')).Num(), 1);
	EXPECT_EQ(Load(Broken).Num(), 1);
	EXPECT_TRUE(Settings->GetValues().AssistantUrl.IsEmpty());

	EXPECT_EQ(Folder.Read(TEXT("settings.json")), Broken);
}

TEST_F(FVorelUserSettingsTest, TheModuleReadsTheFileOfTheDataFolder)
{
	Folder.Write(TEXT("settings.json"), R"({"assistantModel": "from the folder"})");
	FDataFolder::Set(Folder.GetPath());
	FModuleManager::Get().LoadModuleChecked(TEXT("VorelCore"));
	EXPECT_EQ(Settings->GetValues().AssistantModel, TEXT("from the folder"));
	FModuleManager::Get().UnloadModule(TEXT("VorelCore"));
	FDataFolder::Set(FString());
}
