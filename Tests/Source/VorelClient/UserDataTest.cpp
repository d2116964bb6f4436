// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "ClientFixture.h"
#include "FakeAccount.h"
#include "LoginFixture.h"

#include "Account/Server/AuthorizationMetadata.h"
#include "Misc/CoreDelegates.h"
#include "UserData/VorelUserDataService.h"

namespace
{
QByteArray MakeUser(int Credits)
{
	return "{\"name\":\"Ada\\n L.\",\"email\":\"a@b\",\"credits\":" + QByteArray::number(Credits) + ",\"roles\":[\"user\",7,\"beta\"]}";
}

class FUserDataTest : public testing::Test
{
protected:
	// Name, mail, credits and roles of every success, or "failed".
	UVorelUserDataService& Start(FAuthorizationMetadata* Issuer = nullptr)
	{
		Users = &Started.Make();
		Authentication = NewObject<UFakeAuthentication>();
		Users->OnUserDataChanged.AddLambda(
			[this](const FVorelUserData& Data, bool bSuccess)
			{
				EXPECT_TRUE(!bSuccess || Users->UserData.UserName.Equals(Data.UserName));
				Told += bSuccess ? FString::Printf(TEXT("%s %s %d %s;"), *Data.UserName, *Data.Email, Data.Credits,
									   *FString::Join(Data.Entitlements, TEXT("+")))
								 : TEXT("failed;");
			});
		Users->Initialize({FString(Server.GetAddress().constData()), &Tokens, Issuer, &IssuerTokens, MaxSeconds}, *Authentication);
		return *Users;
	}

	static void ReturnToWindow() { FCoreDelegates::ApplicationHasReactivatedDelegate.Broadcast(); }

	void End()
	{
		Started.End();
		Told.Reset();
	}

	bool WaitUntilTold(const FString& Expected)
	{
		return PumpUntil([&] { return Told.Len() >= Expected.Len(); }) && Told.Equals(Expected);
	}

	bool WaitForRequests(int32 Number)
	{
		return PumpUntil([&] { return Server.GetExchanges().size() >= Number; }) && Server.GetExchanges().size() == Number;
	}

	FScriptedServer Server;
	FFakeTokens Tokens{{TEXT("1"), TEXT("2"), TEXT("3"), TEXT("4"), TEXT("5"), TEXT("6"), TEXT("7"), TEXT("8")}};
	FFakeTokens IssuerTokens{{TEXT("foreign"), TEXT("foreign"), TEXT("foreign"), TEXT("foreign"), TEXT("foreign"), TEXT("foreign")}};
	double MaxSeconds = 60.0;
	FString Told;
	UVorelUserDataService* Users = nullptr;
	UFakeAuthentication* Authentication = nullptr;
	TStarted<UVorelUserDataService> Started;
};
} // namespace

TEST_F(FUserDataTest, JoinsCallsRenewsTheTokenAndTellsInAFrame)
{
	Server.Then({ReplyJson("401 Unauthorized"), ReplyJson("200 OK", MakeUser(7))});
	Start().GetUserData();
	Users->GetUserData();
	ASSERT_TRUE(WaitForFrameRequest());
	EXPECT_TEXT(Told, TEXT(""));
	Users->GetUserData();
	EXPECT_TRUE(WaitUntilTold(TEXT("Ada L. a@b 7 user+beta;"))) << Told;
	EXPECT_EQ(Server.GetExchanges()[1].Path, "/v1/user");
	EXPECT_EQ(Server.GetExchanges()[1].Headers["authorization"], "Bearer 2");
	EXPECT_EQ(Server.GetExchanges().size(), 2);
	EXPECT_TEXT(Tokens.Refused[1], TEXT("1"));
}

TEST_F(FUserDataTest, TellsAFailureOnceAndTriesAgainEverLaterAndThenNoMore)
{
	for (const char* const Bad : {"{\"name\":\"Ada\"}", "[7]", "<html>", "", "{\"credits\":\"7\"}", "null"})
	{
		Server.Then(ReplyJson("200 OK", Bad));
	}
	Start().GetUserData();
	ASSERT_TRUE(WaitUntilTold(TEXT("failed;"))) << Told;
	int32 NumAsked = 1;
	for (const float Pause : {2.0f, 5.0f, 15.0f, 30.0f, 60.0f})
	{
		FTSTicker& Ticker = FTSTicker::GetCoreTicker();
		Ticker.Tick(Pause - 1.0f);
		EXPECT_EQ(Server.GetExchanges().size(), NumAsked);
		Ticker.Tick(1.0f);
		ASSERT_TRUE(WaitForRequests(++NumAsked)) << Pause;
		ASSERT_TRUE(WaitForFrameRequest());
		Ticker.Tick(0.0f);
	}
	EXPECT_FALSE(FTSTicker::GetCoreTicker().GetTimeToNextTick().IsSet());
	EXPECT_TEXT(Told, TEXT("failed;"));
	Server.Then(ReplyJson("500 Internal Server Error"));
	Users->GetUserData();
	EXPECT_TRUE(WaitUntilTold(TEXT("failed;failed;"))) << Told;
}

TEST_F(FUserDataTest, DropsWhatASignedOutSessionAskedFor)
{
	Server.Then({ReplyJson("200 OK", MakeUser(7)), ReplyJson("200 OK", MakeUser(8))});
	Start().GetUserData();
	ASSERT_TRUE(WaitUntilTold(TEXT("Ada L. a@b 7 user+beta;")));
	Told.Reset();
	Users->GetUserData();
	ASSERT_TRUE(WaitForFrameRequest());
	Authentication->Logout();
	Users->GetUserData();
	Users->AskAgain();
	ReturnToWindow();
	FTSTicker::GetCoreTicker().Tick(100.0f);
	// Nobody's, so that the next user sees nothing of this one.
	EXPECT_TEXT(Told, TEXT("  0 ;"));
	EXPECT_TRUE(Users->UserData.UserName.IsEmpty());
	EXPECT_EQ(Tokens.Refused.Num(), 2);
}

TEST_F(FUserDataTest, AsksAgainAfterAnAnswerAndOnReturnWithoutCredits)
{
	Server.Then({ReplyJson("200 OK", MakeUser(1)), ReplyJson("200 OK", MakeUser(0)), ReplyJson("200 OK", MakeUser(9)),
		ReplyJson("500 Internal Server Error")});
	Start();
	ReturnToWindow();
	Users->GetUserData();
	ASSERT_TRUE(WaitForRequests(1));
	Users->AskAgain();
	ASSERT_TRUE(WaitUntilTold(TEXT("Ada L. a@b 1 user+beta;Ada L. a@b 0 user+beta;"))) << Told;
	ReturnToWindow();
	ASSERT_TRUE(WaitUntilTold(TEXT("Ada L. a@b 1 user+beta;Ada L. a@b 0 user+beta;Ada L. a@b 9 user+beta;"))) << Told;
	ReturnToWindow();
	EXPECT_EQ(Tokens.Refused.Num(), 3);

	// A failure shows none, whatever was known before.
	Told.Reset();
	Users->GetUserData();
	ASSERT_TRUE(WaitUntilTold(TEXT("failed;"))) << Told;
	ReturnToWindow();
	EXPECT_EQ(Tokens.Refused.Num(), 5);
}

TEST_F(FUserDataTest, GivesUpAnAnswerWithoutAnEnd)
{
	// One says more and more, the other nothing at all.
	Server.Then(SendAndStayOpen(QByteArray(70000, ' ')));
	for (const double Seconds : {60.0, 0.02})
	{
		MaxSeconds = Seconds;
		Start().GetUserData();
		EXPECT_TRUE(WaitUntilTold(TEXT("failed;"))) << Seconds;
		End();
	}
}

TEST_F(FUserDataTest, TakesTheNameFromAForeignIssuerAndTheCreditsFromTheService)
{
	const QByteArray Endpoint = "{\"userinfo_endpoint\":\"" + Server.GetAddress() + "/info\"}";
	const std::tuple<QByteArray, QByteArray, const TCHAR*> Rows[] = {
		{Endpoint, R"({"sub":"42","preferred_username":"grace","email":"g@h"})", TEXT("grace g@h 2147483647 ;")},
		{Endpoint, R"({"name":"\u202ee\u2028v\u2066il","email":"g@h"})", TEXT("e v il g@h 2147483647 ;")},
		{Endpoint, "{\"name\":\"" + QByteArray(41, 'W') + "\"}", TEXT("WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW…  2147483647 ;")},
		{Endpoint, "[]", TEXT("failed;")},
		// Those that tell nothing of their users.
		{Endpoint, "no", TEXT("Signed-in user  2147483647 ;")},
		{"{}", "", TEXT("Signed-in user  2147483647 ;")},
	};
	for (const auto& [Metadata, Info, Expected] : Rows)
	{
		FAuthorizationMetadata Issuer(FString(Server.GetAddress().constData()), FRequestLimits());
		Server.Then({ReplyJson("200 OK", R"({"name":"","credits":5000000000})"), ReplyMetadata(Server, Metadata)});
		if (!Info.isEmpty())
		{
			Server.Then(ReplyJson(Info == "no" ? "403 Forbidden" : "200 OK", Info));
		}
		Start(&Issuer).GetUserData();
		EXPECT_TRUE(WaitUntilTold(Expected)) << Told;
		const FExchange& Last = Server.GetExchanges().last();
		EXPECT_TRUE(Info.isEmpty() || (Last.Path == "/info" && Last.Headers["authorization"] == "Bearer foreign"));
		End();
	}
}
