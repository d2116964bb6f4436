// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Interfaces/IPluginManager.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "Support/LogCapture.h"
#include "Support/Printers.h"
#include "Support/TempFolder.h"

#include <gtest/gtest.h>

class PluginTest : public testing::Test
{
protected:
	// The plug-in of a descriptor with this content; none if it was left out.
	TSharedPtr<IPlugin> Read(const TCHAR* Name, FStringView Content)
	{
		const FString FileName = Folder / Name / Name + TEXT(".uplugin");
		EXPECT_TRUE(FFileHelper::SaveStringToFile(Content, *FileName));
		IPluginManager::Get().AddPluginSearchPath(Folder / Name);
		return IPluginManager::Get().FindPlugin(Name);
	}

	const FTempFolder TempFolder;
	const FString& Folder = TempFolder.GetPath();
};

TEST_F(PluginTest, ReadsTheDescriptorInOrder)
{
	const TSharedPtr<IPlugin> Plugin = Read(TEXT("Good"), TEXT(R"({
		"FriendlyName": "Good one", "VersionName": "1.2", "FileVersion": 3,
		"Modules": [{"Name": "Zeta", "Type": "Editor", "LoadingPhase": "Default"}, {"Name": "Alpha"}]})"));
	ASSERT_TRUE(Plugin);
	EXPECT_TEXT(Plugin->GetName(), TEXT("Good"));
	EXPECT_TEXT(Plugin->GetBaseDir(), Folder / TEXT("Good"));
	EXPECT_TEXT(Plugin->GetDescriptor().FriendlyName, TEXT("Good one"));
	EXPECT_TEXT(Plugin->GetDescriptor().VersionName, TEXT("1.2"));
	ASSERT_EQ(Plugin->GetDescriptor().Modules.Num(), 2);
	EXPECT_EQ(Plugin->GetDescriptor().Modules[0].Name, FName("Zeta"));
	EXPECT_TEXT(Plugin->GetDescriptor().Modules[0].Type, TEXT("Editor"));
	EXPECT_EQ(Plugin->GetDescriptor().Modules[1].Name, FName("Alpha"));
	EXPECT_EQ(IPluginManager::Get().FindPlugin(TEXT("good")), Plugin);
}

TEST_F(PluginTest, LeavesOutWhatIsNoDescriptorAndSaysWhy)
{
	struct FCase
	{
		const TCHAR* Name;
		const TCHAR* Content;
		const TCHAR* Reason;
	};
	const FCase Cases[] = {
		{TEXT("Broken"), TEXT("{\"Modules\": ["), TEXT("parse error")},
		{TEXT("Empty"), TEXT(""), TEXT("parse error")},
		{TEXT("List"), TEXT("[]"), TEXT("must hold an object")},
		{TEXT("BadModules"), TEXT("{\"Modules\": 1}"), TEXT("\"Modules\" must be a list")},
		{TEXT("BadEntry"), TEXT("{\"Modules\": [1]}"), TEXT("must be an object")},
		{TEXT("NoName"), TEXT("{\"Modules\": [{}]}"), TEXT("\"Name\" must be a text")},
		{TEXT("BadVersion"), TEXT("{\"VersionName\": 1}"), TEXT("\"VersionName\" must be a text")},
	};
	for (const FCase& Case : Cases)
	{
		const FLogCapture Log;
		EXPECT_FALSE(Read(Case.Name, Case.Content)) << FString(Case.Name);
		ASSERT_EQ(Log.CountAtLevel("LogPluginManager", ELogVerbosity::Error), 1);
		EXPECT_TRUE(Log.GetMessages()[0].Text.Contains(Case.Reason)) << Log.Dump();
		EXPECT_TRUE(Log.GetMessages()[0].Text.Contains(Folder / Case.Name / Case.Name)) << Log.Dump();
	}
}

TEST_F(PluginTest, ReportsModulesThatThisProgramDoesNotHave)
{
	ASSERT_TRUE(Read(TEXT("Foreign"), TEXT("{\"Modules\": [{\"Name\": \"NoSuchModule\"}]}")));
	const FLogCapture Log;
	EXPECT_FALSE(IPluginManager::Get().LoadModulesForEnabledPlugins());
	EXPECT_TRUE(Log.Has("LogPluginManager", ELogVerbosity::Error, TEXT("Plug-in Foreign: module NoSuchModule could not be loaded")));
	FModuleManager::Get().UnloadModulesAtShutdown();
}
