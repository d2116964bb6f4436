// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "ClientFixture.h"

#include <nlohmann/json.hpp>

using FChatRequestTest = FChatClientTest;
using nlohmann::json;

namespace
{
json ParseBody(const FExchange& Exchange)
{
	return json::parse(Exchange.Body.toStdString(), nullptr, false);
}
} // namespace

TEST_F(FChatRequestTest, TellsTheEventsOfARequestInTheirOrder)
{
	Service().OnMessageAdded.AddLambda(
		[this](TObjectPtr<UMessage> Message) { EXPECT_EQ(Service().GetCurrentConversation()->Messages.Last(), Message); });
	Server.Then(Answer("Hello!"));
	EXPECT_EQ(Ask(TEXT("Hi")), TEXT("history(0)* user(Hi)* chunk(Hello!)* answer(Hello!) completed"));

	// The second message changes neither the list nor its order.
	Server.Then(Answer("Again."));
	EXPECT_EQ(Ask(TEXT("And?")), TEXT("user(And?)* chunk(Again.)* answer(Again.) completed"));
}

TEST_F(FChatRequestTest, TellsANewOrderOfTheListBeforeTheMessage)
{
	Server.Then(Answer("1"));
	Server.Then(Answer("2"));
	Server.Then(Answer("3"));
	Ask(TEXT("first"));
	const FString FirstId = Service().GetCurrentConversation()->Id;
	Service().CreateNewConversation(TEXT("Agent"));
	Ask(TEXT("second"));
	Service().LoadConversation(FirstId);
	EXPECT_EQ(TakeEvents(), TEXT("history(2)"));
	EXPECT_EQ(Ask(TEXT("third")), TEXT("history(2)* user(third)* chunk(3)* answer(3) completed"));
	EXPECT_EQ(Service().GetChatHistories()[0]->Id, FirstId);
}

TEST_F(FChatRequestTest, SendsTheWholeConversationAsStandardChatCompletion)
{
	Endpoint.ApiKey = TEXT("secret");
	Endpoint.BaseUrl += TEXT("/");
	Server.Then(Answer("Answer \\\"one\\\""));
	Server.Then(Answer("Two"));
	Ask(TEXT("Première \"question\"\n😀"));
	Ask(TEXT("Second"));

	const FExchange& Second = Server.GetExchanges()[1];
	EXPECT_EQ(Second.Method, "POST");
	EXPECT_EQ(Second.Path, "/v1/chat/completions");
	EXPECT_EQ(Second.Headers["authorization"], "Bearer secret");
	EXPECT_EQ(Second.Headers["accept-encoding"], "identity");
	EXPECT_EQ(Second.Headers["content-type"], "application/json");
	EXPECT_EQ(Second.Headers["user-agent"], "VorelAI");

	const json Body = ParseBody(Second);
	EXPECT_EQ(Body["model"], "test-model");
	EXPECT_EQ(Body["stream"], true);
	EXPECT_FALSE(Body.contains("metadata"));
	ASSERT_EQ(Body["messages"].size(), 4u);
	EXPECT_EQ(Body["messages"][0]["role"], "system");
	EXPECT_EQ(Body["messages"][1], json({{"role", "user"}, {"content", "Première \"question\"\n😀"}}));
	EXPECT_EQ(Body["messages"][2], json({{"role", "assistant"}, {"content", "Answer \"one\""}}));
	EXPECT_EQ(Body["messages"][3], json({{"role", "user"}, {"content", "Second"}}));
}

TEST_F(FChatRequestTest, SendsTheInstructionsOfTheMode)
{
	Server.Then(Answer("1"));
	Server.Then(Answer("2"));
	Ask(TEXT("Hi"));
	Service().SetCurrentChatMode(TEXT("review"));
	EXPECT_EQ(TakeEvents(), TEXT("mode(Review)"));
	Ask(TEXT("Hi"));
	const std::string Agent = ParseBody(Server.GetExchanges()[0])["messages"][0]["content"];
	const std::string Review = ParseBody(Server.GetExchanges()[1])["messages"][0]["content"];
	EXPECT_NE(Agent, Review);
	EXPECT_NE(Review.find("reviewer"), std::string::npos);
	EXPECT_FALSE(Server.GetExchanges()[0].Headers.contains("authorization"));
}

TEST_F(FChatRequestTest, KeepsRolesInTurnAfterAMessageWithoutAnswer)
{
	Server.Then(ReplyJson("500 Oops"));
	Server.Then(Answer("2"));
	Ask(TEXT("lost"));
	Ask(TEXT("found"));
	const json Messages = ParseBody(Server.GetExchanges()[1])["messages"];
	ASSERT_EQ(Messages.size(), 2u);
	EXPECT_EQ(Messages[1]["content"], "lost\n\nfound");
}

TEST_F(FChatRequestTest, HandsOverOneChunkAFrameHoweverManyEventsCame)
{
	Server.Then(SendAndStayOpen(MakeDelta("a") + MakeDelta("b") + MakeDelta("c")));
	Service().SendMessage(TEXT("Hi"));
	TakeEvents();
	ASSERT_TRUE(WaitForFrameRequest());
	EXPECT_EQ(TakeEvents(), TEXT(""));
	Tick();
	EXPECT_EQ(TakeEvents(), TEXT("chunk(abc)*"));
	Tick();
	EXPECT_EQ(TakeEvents(), TEXT(""));

	// The end comes with the rest of the text, in one frame too, and though the connection stays open.
	Server.GetExchanges()[0].Send(MakeDelta("d") + MakeDelta("e") + EndMark);
	ASSERT_TRUE(WaitForFrameRequest());
	Tick();
	EXPECT_EQ(TakeEvents(), TEXT("chunk(de)* answer(abcde) completed"));
}

TEST_F(FChatRequestTest, AsksForTheFirstModelOnceAndAgainAfterAFailure)
{
	Endpoint.Model.Reset();
	Endpoint.ApiKey = TEXT("secret");
	Server.Then(ReplyJson("200 OK", "{\"object\":\"list\",\"data\":[{\"id\":\"alpha\"},{\"id\":\"other\"}]}"));
	Server.Then(Answer("1"));
	Server.Then(ReplyJson("404 Not Found"));
	Server.Then(ReplyJson("200 OK", "{\"models\":[{\"name\":\"beta\"}]}"));
	Server.Then(Answer("2"));
	for (int32 Round = 0; Round < 3; ++Round)
	{
		Ask(TEXT("Hi"));
	}
	const QList<FExchange>& Exchanges = Server.GetExchanges();
	ASSERT_EQ(Exchanges.size(), 5);
	EXPECT_EQ(Exchanges[0].Method + Exchanges[0].Path, "GET/v1/models");
	EXPECT_EQ(Exchanges[0].Headers["authorization"], "Bearer secret");
	EXPECT_EQ(ParseBody(Exchanges[1])["model"], "alpha");
	EXPECT_EQ(ParseBody(Exchanges[2])["model"], "alpha");
	EXPECT_EQ(ParseBody(Exchanges[4])["model"], "beta");
}

TEST_F(FChatRequestTest, IgnoresAMessageWhileAnAnswerIsUnderWay)
{
	Service().SendMessage(TEXT("one"));
	TakeEvents();
	Service().SendMessage(TEXT("two"));
	EXPECT_EQ(TakeEvents(), TEXT(""));
	EXPECT_EQ(Log.CountAtLevel(TEXT("LogVorel"), ELogVerbosity::Warning), 1) << Log.Dump();
}

TEST_F(FChatRequestTest, TakesTheNextMessageFromALastEvent)
{
	Server.Then(Answer("1"));
	Server.Then(Answer("2"));
	int32 Sent = 0;
	Service().OnRequestCompleted.AddLambda(
		[this, &Sent]
		{
			if (++Sent == 1)
			{
				Service().SendMessage(TEXT("next"));
			}
		});
	Service().SendMessage(TEXT("first"));
	ASSERT_TRUE(PumpUntil([&Sent] { return Sent == 2; }));
	EXPECT_EQ(Service().GetCurrentConversation()->Messages.Num(), 4);
}
