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

TEST_F(FChatRequestTest, SendsTheWholeConversationAndTellsTheEventsInTheirOrder)
{
	Endpoint.ApiKey = TEXT("secret");
	Endpoint.BaseUrl += TEXT("/");
	Service().OnMessageAdded.AddLambda(
		[this](TObjectPtr<UMessage> Message) { EXPECT_EQ(Service().GetCurrentConversation()->Messages.Last(), Message); });
	EXPECT_EQ(Ask(TEXT("\"é\"\n😀"), Answer("\\\"One\\\"")), TEXT("history(0)* user(\"é\"\n😀)* chunk(\"One\")* answer(\"One\") completed"));
	// The second message changes neither the list nor its order.
	EXPECT_EQ(Ask(TEXT("And?"), Answer("Two")), TEXT("user(And?)* chunk(Two)* answer(Two) completed"));

	const FExchange& Second = Server.GetExchanges()[1];
	EXPECT_EQ(Second.Method + Second.Path, "POST/v1/chat/completions");
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
	EXPECT_EQ(Body["messages"][1], json({{"role", "user"}, {"content", "\"é\"\n😀"}}));
	EXPECT_EQ(Body["messages"][2], json({{"role", "assistant"}, {"content", "\"One\""}}));
	EXPECT_EQ(Body["messages"][3], json({{"role", "user"}, {"content", "And?"}}));
}

TEST_F(FChatRequestTest, SendsTheInstructionsOfTheModeAndKeepsRolesInTurnAfterAFailure)
{
	Ask(TEXT("lost"), ReplyJson("500 Oops"));
	Service().SetCurrentChatMode(TEXT("review"));
	EXPECT_EQ(TakeEvents(), TEXT("mode(Review)"));
	Ask(TEXT("found"), Answer("2"));
	const json Agent = ParseBody(Server.GetExchanges()[0])["messages"];
	const json Review = ParseBody(Server.GetExchanges()[1])["messages"];
	EXPECT_NE(Agent[0], Review[0]);
	EXPECT_TRUE(Review[0]["content"].get<std::string>().find("reviewer") != std::string::npos);
	EXPECT_FALSE(Server.GetExchanges()[0].Headers.contains("authorization"));
	ASSERT_EQ(Review.size(), 2u);
	EXPECT_EQ(Review[1]["content"], "lost\n\nfound");
}

TEST_F(FChatRequestTest, HandsOverOneChunkAFrameHoweverManyEventsCame)
{
	Begin(TEXT("Hi"), MakeDelta("a") + MakeDelta("b") + MakeDelta("c"));
	EXPECT_EQ(TakeEvents(), TEXT(""));
	CollectGarbage();
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
	Server.Then({ReplyJson("200 OK", "{\"object\":\"list\",\"data\":[{\"id\":\"alpha\"},{\"id\":\"other\"}]}"), Answer("1"),
		ReplyJson("404 Not Found"), ReplyJson("200 OK", "{\"models\":[{\"name\":\"beta\"}]}"), Answer("2")});
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
	Server.Then({Answer("1"), Answer("2")});
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
