// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "ClientFixture.h"
#include "FakeAccount.h"

#include <nlohmann/json.hpp>

namespace
{
class FChatTokenTest : public FChatClientTest
{
protected:
	FChatTokenTest()
	{
		Endpoint.ApiKey = TEXT("key");
		Endpoint.Tokens = &Tokens;
		Endpoint.BillingUrl = TEXT("http://service/billing");
		Service().OnCreditsSpent = [this]
		{
			++NumSpent;
		};
	}

	// Of each request so far: the token, and the mode where one was sent.
	FString GetRequests() const
	{
		FString Requests;
		for (const FExchange& Exchange : Server.GetExchanges())
		{
			const auto Body = nlohmann::json::parse(Exchange.Body.toStdString());
			const auto Mode = Body.contains("metadata") ? Body["metadata"]["vorel_mode"].get<std::string>() : std::string();
			Requests += FString((Exchange.Headers.value("authorization").toStdString() + " " + Mode + ";").c_str());
		}
		return Requests;
	}

	FFakeTokens Tokens{{TEXT("one"), TEXT("two")}};
	int32 NumSpent = 0;
};
} // namespace

TEST_F(FChatTokenTest, RenewsTheTokenOnceAndTellsTheMode)
{
	Server.Then({ReplyJson("401 Unauthorized"), Answer("Yes.")});
	EXPECT_EQ(Ask(TEXT("Hi")), TEXT("history(0)* user(Hi)* chunk(Yes.)* answer(Yes.) completed"));
	EXPECT_TEXT(GetRequests(), TEXT("Bearer one agent;Bearer two agent;"));
	EXPECT_EQ(Tokens.Refused, (TArray<FString>{FString(), TEXT("one")}));
	EXPECT_EQ(NumSpent, 1);
}

TEST_F(FChatTokenTest, AsksToSignInAgainWhereNoTokenIsTaken)
{
	Server.Then({ReplyJson("401 Unauthorized"), ReplyJson("401 Unauthorized")});
	EXPECT_EQ(Ask(TEXT("Hi")), TEXT("history(0)* user(Hi)* failed(Your login is no longer valid. Log out and sign in again.)"));
	EXPECT_EQ(Ask(TEXT("Hi")),
		TEXT("user(Hi)* failed(Your login could not be confirmed at the moment. The log tells why. Try again in a while.)"));
	EXPECT_TEXT(GetRequests(), TEXT("Bearer one agent;Bearer two agent;"));
	EXPECT_EQ(NumSpent, 0);
}

TEST_F(FChatTokenTest, NamesCreditsAndWhereToGetThem)
{
	Service().SetCurrentChatMode(TEXT("Ask"));
	TakeEvents();
	EXPECT_EQ(Ask(TEXT("Hi"), ReplyJson("402 Payment Required")),
		TEXT("history(0)* user(Hi)* failed(You have no credits left for this mode. Get more at "
			 "http://service/billing, or take another mode.)"));
	EXPECT_TEXT(GetRequests(), TEXT("Bearer one chat;"));
	EXPECT_EQ(NumSpent, 1);
	Ask(TEXT("Hi"), ReplyJson("500 Internal Server Error"));
	EXPECT_EQ(NumSpent, 1);
	Tokens.Tokens.Add(TEXT("three"));
	Ask(TEXT("Hi"), [](const FExchange& Exchange) { Exchange.Reset(); });
	EXPECT_EQ(NumSpent, 2);
}
