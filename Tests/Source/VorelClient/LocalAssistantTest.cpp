// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "ClientFixture.h"

#include "AuthenticationService.h"
#include "DataFolder.h"
#include "Modules/ModuleManager.h"
#include "Support/TempFolder.h"
#include "VorelClient.h"
#include "VorelClientOptions.h"
#include "VorelSettings.h"
#include "VorelUpdateService.h"
#include "VorelUserSettings.h"
#include <cstdlib>
#include <filesystem>

// The whole module with the embedded service, as the program starts it.
class FLocalAssistantTest : public testing::Test
{
protected:
	void Load(const FVorelClientOptions& Options = {.GuidePieceMilliseconds = 0})
	{
		::setenv("VOREL_SECRET_STORE", "none", 1);
		FDataFolder::Set(Folder.GetPath());
		FVorelClientOptions::Set(Options);
		FModuleManager::Get().LoadModuleChecked(TEXT("VorelClient"));
	}

	~FLocalAssistantTest() override
	{
		FModuleManager::Get().UnloadModule(TEXT("VorelClient"));
		FVorelClientOptions::Set({});
		FDataFolder::Set(FString());
		CollectGarbage();
	}

	// What is told, or the failure.
	static FString Ask(const TCHAR* Question)
	{
		const TObjectPtr<UChatService> Chat = FVorelClient::Get().GetChatService();
		FString Told;
		Chat->OnChunkReceived.AddLambda([&](const FString& Chunk) { Told += Chunk; });
		Chat->OnRequestFailed.AddLambda([&](const FString& Error) { Told = Error; });
		Chat->SendMessage(Question);
		EXPECT_TRUE(PumpUntil([&] { return !Chat->bIsProcessingRequest; }));
		return Told;
	}

	FTempFolder Folder;
};

TEST_F(FLocalAssistantTest, WithoutConfigurationAsksToSignIn)
{
	const FLogCapture Log;
	::setenv("VOREL_ASSISTANT_KEY", "key", 1);
	Load({.Model = TEXT("of nobody")});
	EXPECT_EQ(std::getenv("VOREL_ASSISTANT_KEY"), nullptr);
	EXPECT_EQ(Log.CountAtLevel(TEXT("LogVorel"), ELogVerbosity::Warning), 1) << Log.Dump();
	EXPECT_TRUE(UVorelSettings::Get()->GetAppUrl().StartsWith(TEXT("http://127.0.0.1:")));
	EXPECT_FALSE(FVorelClient::Get().GetAuthService()->IsAuthenticated());
	// Nobody is asked for a newer version.
	FVorelClient::Get().GetUpdateService()->CheckForUpdates();
	EXPECT_FALSE(std::filesystem::exists(*Folder.GetPath(TEXT("version-feed.json"))));
	EXPECT_TEXT(Ask(TEXT("How do I set a timer?")),
		TEXT("Your login could not be confirmed at the moment. The log tells why. Try again in a while."));
}

// Its tokens are none of the service's, which serves its owner then.
TEST_F(FLocalAssistantTest, AnswersFromTheGuideWhoeverSignsUsersIn)
{
	// Nor does it need a file.
	std::filesystem::create_directory(*Folder.GetPath(TEXT("service.sqlite")));
	Load({.Issuer = TEXT("http://127.0.0.1:9"), .ClientId = TEXT("vorel"), .GuidePieceMilliseconds = 0});
	const FString Told = Ask(TEXT("How do I set a timer?"));
	EXPECT_TRUE(Told.Contains(TEXT("From its article **Timers**"))) << Told.Left(200);
	EXPECT_TEXT(FVorelClient::Get().GetChatService()->GetCurrentConversation()->Messages.Last()->Contents[0]->Text, Told);
}

// What one of them noted is nothing to the others.
TEST_F(FLocalAssistantTest, EachDataFolderHasALoginOfItsOwn)
{
	Folder.Write(TEXT("settings.json"), R"({"allowTokenFile": true})");
	UVorelUserSettings::Get()->Load(Folder.GetPath(TEXT("settings.json")));
	for (const bool bHere : {true, false})
	{
		const std::string Account = std::string("http://127.0.0.1:9 vorel-editor ") + TCHAR_TO_UTF8(*Folder.GetPath()) + (bHere ? "" : "2");
		Folder.Write(TEXT("login.json"), R"({"logins": {")" + Account + R"(": "file"}})");
		std::filesystem::permissions(*Folder.GetPath(TEXT("login.json")), std::filesystem::perms(0600));
		Load({.ServiceUrl = TEXT("http://127.0.0.1:9")});
		EXPECT_EQ(FVorelClient::Get().GetAuthService()->IsAuthenticated(), bHere);
		FModuleManager::Get().UnloadModule(TEXT("VorelClient"));
	}
	UVorelUserSettings::Get()->Load(FString());
}

TEST_F(FLocalAssistantTest, KeepsItsServicesUntilItIsUnloaded)
{
	Load();
	const TObjectPtr<UChatService> Chat = FVorelClient::Get().GetChatService();
	CollectGarbage();
	EXPECT_TRUE(IsValid(Chat));
	Chat->SendMessage(TEXT("How do I set a timer?"));
	FModuleManager::Get().UnloadModule(TEXT("VorelClient"));
	CollectGarbage();
	EXPECT_FALSE(IsValid(Chat));
	FTSTicker::GetCoreTicker().Tick(0.0f);
}
