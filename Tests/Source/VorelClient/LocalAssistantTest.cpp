// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "ClientFixture.h"

#include "AuthenticationService.h"
#include "DataFolder.h"
#include "Modules/ModuleManager.h"
#include "Support/TempFolder.h"
#include "UserDataService.h"
#include "VorelClient.h"
#include "VorelClientOptions.h"
#include "VorelSettings.h"

// The whole module with the embedded service, as the program without options starts it.
class FLocalAssistantTest : public testing::Test
{
protected:
	FLocalAssistantTest()
	{
		FDataFolder::Set(Folder.GetPath());
		FVorelClientOptions::Set({.GuidePieceMilliseconds = 0});
		FModuleManager::Get().LoadModuleChecked(TEXT("VorelClient"));
	}

	~FLocalAssistantTest() override
	{
		FModuleManager::Get().UnloadModule(TEXT("VorelClient"));
		FVorelClientOptions::Set({});
		FDataFolder::Set(FString());
		CollectGarbage();
	}

	FTempFolder Folder;
};

TEST_F(FLocalAssistantTest, AnswersFromTheGuideWithoutConfiguration)
{
	const TObjectPtr<UChatService> Chat = FVorelClient::Get().GetChatService();
	FString Streamed;
	FString Failure;
	bool bCompleted = false;
	Chat->OnChunkReceived.AddLambda([&](const FString& Chunk) { Streamed += Chunk; });
	Chat->OnRequestFailed.AddLambda([&](const FString& Error) { Failure = Error; });
	Chat->OnRequestCompleted.AddLambda([&] { bCompleted = true; });
	Chat->SendMessage(TEXT("How do I set a timer?"));
	// Who signs out finds the answer in its conversation when coming back.
	FVorelClient::Get().GetAuthService()->Logout();
	ASSERT_TRUE(PumpUntil([&] { return !Chat->bIsProcessingRequest; }));
	EXPECT_TRUE(bCompleted) << Failure;
	EXPECT_TRUE(Streamed.Contains(TEXT("From its article **Timers**"))) << Streamed.Left(200);
	EXPECT_EQ(Chat->GetCurrentConversation()->Messages.Last()->Contents[0]->Text, Streamed);
}

TEST_F(FLocalAssistantTest, TellsTheWebPagesAddress)
{
	EXPECT_TRUE(UVorelSettings::Get()->GetAppUrl().StartsWith(TEXT("http://127.0.0.1:")));
}

TEST_F(FLocalAssistantTest, CountsAsSignedIn)
{
	const TObjectPtr<UAuthenticationService> Auth = FVorelClient::Get().GetAuthService();
	int32 Changes = 0;
	Auth->OnAuthenticationStateChanged.AddLambda([&] { ++Changes; });
	EXPECT_TRUE(Auth->IsAuthenticated());
	Auth->Logout();
	Auth->Logout();
	EXPECT_FALSE(Auth->IsAuthenticated());
	EXPECT_EQ(Changes, 1);
	Auth->StartLogin();
	EXPECT_TRUE(Auth->IsAuthenticated());
	EXPECT_EQ(Changes, 2);
}

TEST_F(FLocalAssistantTest, KnowsTheUserAndWhatAnAnswerCosts)
{
	const TObjectPtr<UUserDataService> Users = FVorelClient::Get().GetUserDataService();
	TArray<int32> Credits;
	Users->OnUserDataChanged.AddLambda([&](const FVorelUserData& Data, bool bSuccess) { Credits.Add(bSuccess ? Data.Credits : -1); });
	Users->GetUserData();
	ASSERT_TRUE(PumpUntil([&] { return Credits.Num() == 1; }));
	FVorelClient::Get().GetChatService()->SendMessage(TEXT("How do I set a timer?"));
	ASSERT_TRUE(PumpUntil([&] { return Credits.Num() == 2; }));
	EXPECT_EQ(Credits, (TArray<int32>{100, 99}));
}

TEST_F(FLocalAssistantTest, KeepsItsServicesUntilItIsUnloaded)
{
	const TObjectPtr<UChatService> Chat = FVorelClient::Get().GetChatService();
	CollectGarbage();
	EXPECT_TRUE(IsValid(Chat));
	Chat->SendMessage(TEXT("How do I set a timer?"));
	FModuleManager::Get().UnloadModule(TEXT("VorelClient"));
	CollectGarbage();
	EXPECT_FALSE(IsValid(Chat));
	FTSTicker::GetCoreTicker().Tick(0.0f);
}
