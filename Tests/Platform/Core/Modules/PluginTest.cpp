// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Interfaces/IPluginManager.h"
#include "Modules/ModuleManager.h"
#include "Support/LogCapture.h"
#include "Support/Printers.h"
#include "Support/TempFolder.h"

#include <filesystem>
#include <gtest/gtest.h>

class PluginTest : public testing::Test
{
protected:
	// The plug-in of a descriptor with this content; none if it was left out.
	TSharedPtr<IPlugin> Read(const FString& Name, const char* Content)
	{
		std::filesystem::create_directory(TCHAR_TO_UTF8(Folder.GetPath(*Name)));
		Folder.Write(*(Name / Name + TEXT(".uplugin")), Content);
		IPluginManager::Get().AddPluginSearchPath(Folder.GetPath(*Name));
		return IPluginManager::Get().FindPlugin(Name);
	}

	const FTempFolder Folder;
};

TEST_F(PluginTest, ReadsTheDescriptorInOrderAndReportsModulesThatThisProgramDoesNotHave)
{
	const TSharedPtr<IPlugin> Plugin = Read(TEXT("Good"), R"({
		"FriendlyName": "Good one", "VersionName": "1.2", "FileVersion": 3,
		"Modules": [{"Name": "Zeta", "Type": "Editor", "LoadingPhase": "Default"}, {"Name": "Alpha"}]})");
	ASSERT_TRUE(Plugin);
	EXPECT_EQ(IPluginManager::Get().FindPlugin(TEXT("good")), Plugin);
	EXPECT_TEXT(Plugin->GetBaseDir(), Folder.GetPath(TEXT("Good")));
	EXPECT_TEXT(Plugin->GetDescriptor().FriendlyName, TEXT("Good one"));
	EXPECT_TEXT(Plugin->GetDescriptor().VersionName, TEXT("1.2"));
	ASSERT_EQ(Plugin->GetDescriptor().Modules.Num(), 2);
	EXPECT_EQ(Plugin->GetDescriptor().Modules[0].Name, FName("Zeta"));
	EXPECT_TEXT(Plugin->GetDescriptor().Modules[0].Type, TEXT("Editor"));

	const FLogCapture Log;
	EXPECT_FALSE(IPluginManager::Get().LoadModulesForEnabledPlugins());
	EXPECT_TRUE(Log.Has("LogPluginManager", ELogVerbosity::Error, TEXT("Plug-in Good: module Alpha could not be loaded"))) << Log.Dump();
	FModuleManager::Get().UnloadModulesAtShutdown();
}

TEST_F(PluginTest, LeavesOutWhatIsNoDescriptorAndSaysWhy)
{
	const TPair<const char*, const TCHAR*> Cases[] = {
		{"{\"Modules\": [", TEXT("parse error")},
		{"", TEXT("parse error")},
		{"[]", TEXT("must hold an object")},
		{"{\"Modules\": 1}", TEXT("\"Modules\" must be a list")},
		{"{\"Modules\": [1]}", TEXT("must be an object")},
		{"{\"Modules\": [{}]}", TEXT("\"Name\" must be a text")},
		{"{\"VersionName\": 1}", TEXT("\"VersionName\" must be a text")},
	};
	for (int32 Index = 0; const auto& [Content, Reason] : Cases)
	{
		const FLogCapture Log;
		const FString Name = FString::Printf(TEXT("Bad%d"), Index++);
		EXPECT_FALSE(Read(Name, Content)) << Content;
		ASSERT_EQ(Log.CountAtLevel("LogPluginManager", ELogVerbosity::Error), 1);
		EXPECT_TRUE(Log.Dump().Contains(Reason)) << Log.Dump();
		EXPECT_TRUE(Log.Dump().Contains(Folder.GetPath(*Name) / Name)) << Log.Dump();
	}
}
