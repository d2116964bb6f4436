// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "StoreFixture.h"

#include "Store/ConversationSchema.h"
#include "Store/SqliteDatabase.h"
#include "Store/StoreSchema.h"
#include <filesystem>
#include <nlohmann/json.hpp>

TEST_F(FStoreTest, BringsConversationsBack)
{
	Ask(TEXT("  What\n\tcolour?  "), Answer("Blue \\\"and\\\" 今😀"));
	Service().CreateNewConversation(TEXT("Review"));
	Server.Then(
		[](const FExchange& Exchange) {
			Exchange.SendReply("200 OK", "text/event-stream", MakeDelta("Ab") + "data: {\"choices\":[{\"finish_reason\":\"length\"}]}\n\n");
		});
	Ask(TEXT("two"));
	Service().SetCurrentChatMode(TEXT("Ask"));
	EndService();
	TakeEvents();

	EXPECT_EQ(GetTitles(Service()), TEXT("two|What colour?"));
	EXPECT_EQ(Service().GetCurrentChatModeName(), TEXT("Agent"));
	const TArray<TObjectPtr<USerializableChatHistory>> List = Service().GetChatHistories();
	EXPECT_TRUE(List[1]->IsValidHistory() && List[1]->Messages.IsEmpty());
	Service().LoadConversation(List[1]->Id);
	EXPECT_EQ(TakeEvents(), TEXT("history(2)"));
	EXPECT_EQ(GetTexts(Service()), TEXT("  What\n\tcolour?  |Blue \"and\" 今😀"));
	Service().LoadConversation(List[0]->Id);
	EXPECT_EQ(TakeEvents(), TEXT("mode(Ask) history(2)"));
	EXPECT_EQ(GetTexts(Service()), TEXT("two|Ab\n\n*The answer ends here because it reached the assistant's length limit.*"));
	// The other one has let go of its messages, and the objects are the same for good.
	EXPECT_TRUE(List[1]->Messages.IsEmpty());

	Ask(TEXT("And?"), Answer("Fine"));
	EXPECT_EQ(nlohmann::json::parse(Server.GetExchanges().last().Body.toStdString())["messages"][2]["content"], "Ab");
	Service().LoadConversation(List[1]->Id);
	CollectGarbage();
	EXPECT_TRUE(Service().GetChatHistories() == List);
	Service().DeleteChatHistory(List[0]->Id);
	EXPECT_FALSE(IsValid(List[0]));
	EndService();
	EXPECT_EQ(GetTitles(Service()), TEXT("What colour?"));
}

TEST_F(FStoreTest, MarksAsInterruptedWhatQuittingOrLeavingCutShort)
{
	Begin(TEXT("first"), MakeDelta("One"));
	const FString First = FirstId();
	Service().CreateNewConversation(TEXT("Agent"));
	Begin(TEXT("second"), MakeDelta("Two"));
	const FString Second = FirstId();
	EndService();
	EXPECT_EQ(ReadFile(First), TEXT("user(first) interrupted(One)"));
	EXPECT_EQ(ReadFile(Second), TEXT("user(second) interrupted(Two)"));
	Service().LoadConversation(Second);
	EXPECT_EQ(GetTexts(Service()), TEXT("second|Two\n\n*The answer was interrupted here.*"));
}

TEST_F(FStoreTest, SharesTheFileWithAnotherProgram)
{
	UHttpChatService& Other = StartOther();
	const UHttpChatService& Idle = StartOther();
	{
		FStoreError Error;
		const TUniquePtr<FConversationStore> Store = FConversationStore::OpenAgain(StoreFile, Error);
		ASSERT_FALSE(
			Store->AddConversation({TEXT("id"), TEXT("one"), TEXT("A mode of the future"), 1, 1}, {{EChatRole::User, TEXT("one")}}));
	}
	ASSERT_TRUE(PumpUntil([&] { return GetTitles(Other) == TEXT("one"); }));
	Other.LoadConversation(TEXT("id"));
	EXPECT_EQ(Other.GetCurrentChatModeName(), TEXT("Agent"));
	Service().LoadConversation(TEXT("id"));
	const TObjectPtr<USerializableChatHistory> Open = Other.GetCurrentConversation();

	// What the one program writes shows in the open conversation of the other, and so does its mode.
	Service().SetCurrentChatMode(TEXT("Review"));
	Ask(TEXT("two"), Answer("2"));
	ASSERT_TRUE(PumpUntil([&] { return GetTexts(Other) == TEXT("one|two|2") && Other.GetCurrentChatModeName() == TEXT("Review"); }));

	// Between the events of a request nothing is told.
	Server.Then(SendAndStayOpen(MakeDelta("3")));
	Other.SendMessage(TEXT("three"));
	ASSERT_TRUE(PumpUntil([this] { return Server.GetExchanges().size() == 2; }));
	int32 Changes = 0;
	Other.OnChatHistoryChanged.AddLambda([&] { ++Changes; });
	Service().DeleteChatHistory(Open->Id);
	Service().CreateNewConversation(TEXT("Agent"));
	Ask(TEXT("four"), Answer("4"));
	ASSERT_TRUE(PumpUntil([&] { return GetTitles(Idle) == TEXT("four"); }));
	EXPECT_EQ(Changes, 0);
	Server.GetExchanges()[1].Send(EndMark);
	ASSERT_TRUE(PumpUntil([&] { return GetTitles(Other) == TEXT("four"); }));
	EXPECT_EQ(Log.Count(TEXT("LogVorelStore"), ELogVerbosity::Error,
				  TEXT("A change could not be stored: another program has deleted the conversation")),
		1)
		<< Log.Dump();
	EXPECT_FALSE(IsValid(Open));
	EXPECT_TRUE(Other.GetCurrentConversation()->Messages.IsEmpty());
	EXPECT_EQ(Other.GetCurrentChatModeName(), TEXT("Agent"));
	EXPECT_EQ(ReadFile(Open->Id), TEXT(""));
}

TEST_F(FStoreTest, MigratesStepByStepWithABackup)
{
	const FStoreSchema Old = GetConversationSchema();
	FStoreSchema Newer = Old;
	Newer.Migrations.Add("CREATE TABLE extra(a); INSERT INTO extra VALUES (7)");
	FStoreSchema Broken = Newer;
	Broken.Migrations.Add("DROP TABLE extra; nonsense");
	const auto Prepare = [this](const FStoreSchema& Schema)
	{
		FSqliteDatabase Database(StoreFile, true);
		PrepareStore(Database, StoreFile, Schema);
	};
	Prepare(Old);
	EXPECT_EQ(FSqliteDatabase(StoreFile, false).ReadNumber("PRAGMA user_version"), 1);
	// The rest of an earlier try is no obstacle.
	Folder.Write(*(FString(FConversationStore::FileName) + TEXT(".version-1")), "rubbish");
	Prepare(Newer);
	EXPECT_EQ(FSqliteDatabase(StoreFile + TEXT(".version-1"), false).ReadNumber("PRAGMA user_version"), 1);
	EXPECT_EQ(std::filesystem::status(TCHAR_TO_UTF8(StoreFile + TEXT(".version-1"))).permissions(), std::filesystem::perms(0600));
	EXPECT_THROW(Prepare(Broken), FStoreError);
	EXPECT_EQ(FSqliteDatabase(StoreFile, false).ReadNumber("SELECT a FROM extra"), 7);
	EXPECT_EQ(FSqliteDatabase(StoreFile, false).ReadNumber("PRAGMA user_version"), 2);
}
