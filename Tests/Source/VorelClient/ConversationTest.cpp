// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "ClientFixture.h"

#include "Chat/AnswerNote.h"
#include "Chat/ConversationTitle.h"

using FConversationTest = FChatClientTest;

TEST_F(FConversationTest, StartsWithAnEmptyOneInTheDefaultModeAndIgnoresWhatItDoesNotKnow)
{
	EXPECT_EQ(Service().GetCurrentChatModeName(), TEXT("Agent"));
	EXPECT_EQ(Service().GetChatModeNames(), (TArray<FString>{TEXT("Agent"), TEXT("Ask"), TEXT("Review")}));
	EXPECT_TRUE(UChatService::IsChatModeNameAnAgent(UChatService::DefaultAgentChatModeName));
	EXPECT_TRUE(UChatService::IsChatModeNameAnAgent(TEXT("agent")));
	EXPECT_FALSE(UChatService::IsChatModeNameAnAgent(TEXT("Ask")));
	EXPECT_FALSE(UChatService::IsChatModeNameAnAgent(TEXT("nonsense")));
	EXPECT_TRUE(Service().GetCurrentConversation()->Messages.IsEmpty());
	EXPECT_FALSE(Service().GetCurrentConversation()->IsValidHistory());
	EXPECT_TRUE(Service().GetChatHistories().IsEmpty());

	Service().LoadConversation(TEXT("nowhere"));
	Service().DeleteChatHistory(TEXT("nowhere"));
	Service().SetCurrentChatMode(TEXT("nonsense"));
	EXPECT_EQ(TakeEvents(), TEXT(""));
	Service().CreateNewConversation(TEXT("nonsense"));
	EXPECT_EQ(Service().GetCurrentChatModeName(), TEXT("Agent"));
	EXPECT_EQ(Log.CountAtLevel(TEXT("LogVorel"), ELogVerbosity::Warning), 4) << Log.Dump();
}

TEST_F(FConversationTest, IsAlreadyAValidRowWhenTheListIsToldWithTimeAndTitle)
{
	FString Title;
	Service().OnChatHistoryChanged.AddLambda(
		[&]
		{
			const TObjectPtr<USerializableChatHistory> First = Service().GetChatHistories()[0];
			Title = First->IsValidHistory() ? First->GetDisplayableTitle(false, 20) : FString(TEXT("(invalid)"));
		});
	Ask(TEXT("  How do I\n\tspawn 👨‍👩‍👧 می‌خواهم in C++?  "), Answer("1"));
	EXPECT_EQ(Title, TEXT("How do I spawn 👨‍👩‍👧 می‌…"));

	Service().CreateNewConversation(TEXT("Agent"));
	Ask(TEXT("   "), Answer("2"));
	const FString Shown = Service().GetChatHistories()[0]->GetDisplayableTitle(true, 20);
	EXPECT_TRUE(Shown.EndsWith(TEXT(" Untitled")) && Shown[2] == ':') << Shown;
	constexpr int64 Day = 24 * 60 * 60 * 1000;
	EXPECT_EQ(FormatTimeOfUse(200 * Day, 300 * Day).Right(3), TEXT("Jul"));
}

TEST_F(FConversationTest, OpensAndDeletes)
{
	Ask(TEXT("one"), Answer("1"));
	const FString One = Service().GetCurrentConversation()->Id;
	Service().CreateNewConversation(TEXT("ask"));
	EXPECT_EQ(TakeEvents(), TEXT("mode(Ask) history(0)"));
	Ask(TEXT("two"), Answer("2"));
	const FString Two = Service().GetCurrentConversation()->Id;

	Service().LoadConversation(One);
	EXPECT_EQ(TakeEvents(), TEXT("mode(Agent) history(2)"));
	Service().LoadConversation(One);
	EXPECT_EQ(TakeEvents(), TEXT(""));
	// The list has a new order before the message is told.
	EXPECT_EQ(Ask(TEXT("three"), Answer("3")), TEXT("history(2)* user(three)* chunk(3)* answer(3) completed"));
	EXPECT_EQ(Service().GetChatHistories()[0]->Id, One);

	Service().DeleteChatHistory(Two);
	EXPECT_EQ(TakeEvents(), TEXT("history(4)"));
	Service().DeleteChatHistory(One);
	EXPECT_EQ(TakeEvents(), TEXT("history(0)"));
	EXPECT_TRUE(Service().GetChatHistories().IsEmpty());
}

TEST_F(FConversationTest, DeletingTheOneWithTheAnswerKeepsWhatArrivedUntilItIsGone)
{
	Begin(TEXT("Hi"), MakeDelta("Half"));
	Tick();
	TakeEvents();
	Service().SetCurrentChatMode(TEXT("Ask"));
	const TObjectPtr<USerializableChatHistory> Deleted = Service().GetCurrentConversation();
	bool bGone = false;
	Service().OnChatHistoryChanged.AddLambda([&] { bGone = !IsValid(Deleted) && Service().GetChatHistories().IsEmpty(); });
	Service().DeleteChatHistory(Deleted->Id);
	EXPECT_EQ(TakeEvents(), TEXT("mode(Ask)* interrupted(Half) failed(The answer was stopped because its conversation was deleted.) "
								 "mode(Agent) history(0)"));
	EXPECT_TRUE(bGone);

	EXPECT_EQ(Ask(TEXT("Next"), Answer("Fine")), TEXT("history(0)* user(Next)* chunk(Fine)* answer(Fine) completed"));
}

TEST_F(FConversationTest, DeletingAnotherOneIsToldAfterTheAnswer)
{
	Ask(TEXT("one"), Answer("1"));
	const FString One = Service().GetCurrentConversation()->Id;
	Service().CreateNewConversation(TEXT("Agent"));
	Server.Then(Answer("2"));
	TakeEvents();
	Service().SendMessage(TEXT("two"));
	Service().DeleteChatHistory(One);
	EXPECT_EQ(Service().GetChatHistories().Num(), 1);
	ASSERT_TRUE(PumpUntil([this] { return !Service().bIsProcessingRequest; }));
	EXPECT_EQ(TakeEvents(), TEXT("history(0)* user(two)* chunk(2)* answer(2) completed history(2)"));
}

TEST_F(FConversationTest, LeavingAnAnswerNeverMixesTwoConversations)
{
	// Arrived, and not yet handed over.
	Begin(TEXT("Hi"), MakeDelta("Half"));
	const TObjectPtr<USerializableChatHistory> Left = Service().GetCurrentConversation();
	Service().CreateNewConversation(TEXT("Agent"));
	EXPECT_EQ(TakeEvents(), TEXT("interrupted(Half) failed(The answer was stopped because another conversation was opened.) history(0)"));
	Server.GetExchanges()[0].Send(MakeDelta("more") + EndMark);
	EXPECT_EQ(Ask(TEXT("Next"), Answer("Fine")), TEXT("history(0)* user(Next)* chunk(Fine)* answer(Fine) completed"));
	EXPECT_EQ(Left->Messages.Num(), 2);
}

TEST_F(FConversationTest, AListenerMayCancelTheRequestThatIsBeingTold)
{
	Server.Then(Answer("never"));
	bool bDeleted = false;
	Service().OnMessageAdded.AddLambda(
		[&](TObjectPtr<UMessage>)
		{
			if (!bDeleted)
			{
				bDeleted = true;
				Service().DeleteChatHistory(Service().GetCurrentConversation()->Id);
			}
		});
	Service().SendMessage(TEXT("Hi"));
	EXPECT_FALSE(Service().bIsProcessingRequest);
	EXPECT_TRUE(Server.GetExchanges().isEmpty());
	EXPECT_TRUE(Service().GetCurrentConversation()->Messages.IsEmpty());
}

TEST_F(FConversationTest, AListenerMayDeleteWhatIsAboutToBeOpened)
{
	Ask(TEXT("one"), Answer("1"));
	const TObjectPtr<USerializableChatHistory> One = Service().GetCurrentConversation();
	Service().CreateNewConversation(TEXT("Agent"));
	Server.Then(SendAndStayOpen(MakeDelta("Half")));
	Service().SendMessage(TEXT("two"));
	const TObjectPtr<USerializableChatHistory> Two = Service().GetCurrentConversation();
	Service().OnRequestFailed.AddLambda(
		[&](const FString&)
		{
			Service().DeleteChatHistory(One->Id);
			CollectGarbage();
		});
	Service().LoadConversation(One->Id);
	EXPECT_EQ(Service().GetCurrentConversation(), Two);
	EXPECT_FALSE(IsValid(One));
}

TEST(FAnswerNoteTest, ClosesTheBlockOfCodeInWhichTheAnswerEnds)
{
	const FString Note = TEXT("\n\n*The answer was interrupted here.*");
	const std::pair<FString, FString> Rows[] = {
		{TEXT("words"), TEXT("")},
		{TEXT("```cpp\nint A;"), TEXT("\n```")},
		{TEXT("~~~~\n~~~\n```\n"), TEXT("~~~~")},
		{TEXT("```\na\n````  \nmore"), TEXT("")},
		{TEXT("```\na\n```cpp\nmore"), TEXT("\n```")},
		{TEXT("- one\n- ```\n  a"), TEXT("\n  ```")},
		{TEXT("12. ```\n    a\n    ```"), TEXT("")},
		{TEXT("```in a line```\nwords"), TEXT("")},
		{TEXT("a ``` b\n- `` c"), TEXT("")},
		{TEXT("> ```\n> a"), TEXT("")},
	};
	for (const auto& [Answer, Closing] : Rows)
	{
		EXPECT_EQ(MakeAnswerNote(Answer, EAnswerEnd::Failed), Closing + Note) << Answer;
	}
	EXPECT_EQ(MakeAnswerNote(TEXT("```"), EAnswerEnd::Complete), TEXT(""));
}

TEST(FConversationTitleTest, IsCutBetweenCharactersWithItsEllipsisInTheLimit)
{
	EXPECT_EQ(ShortenTitle(TEXT("12345678901234567890"), 20), TEXT("12345678901234567890"));
	EXPECT_EQ(ShortenTitle(TEXT("123456789012345678901"), 20), TEXT("1234567890123456789…"));
	EXPECT_EQ(ShortenTitle(TEXT("one two three"), 5), TEXT("one…"));
	// A family, a flag and a letter with two marks are one character each.
	EXPECT_EQ(ShortenTitle(TEXT("👨‍👩‍👧🇫🇷é̂x"), 4), TEXT("👨‍👩‍👧🇫🇷é̂x"));
	EXPECT_EQ(ShortenTitle(TEXT("👨‍👩‍👧🇫🇷é̂x"), 3), TEXT("👨‍👩‍👧🇫🇷…"));
	EXPECT_EQ(ShortenTitle(TEXT("abc"), 1), TEXT("…"));
	EXPECT_EQ(ShortenTitle(TEXT("abc"), 0), TEXT(""));
}
