// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "LoginFixture.h"

#include "Account/Server/AuthorizationMetadata.h"
#include "Account/Tokens/LoginSession.h"
#include "Http/Form.h"
#include <csignal>
#include <filesystem>
#include <sys/resource.h>

namespace
{
// Nothing can be written to any file as long as it lives.
class FFullDisk
{
public:
	FFullDisk()
	{
		std::signal(SIGXFSZ, SIG_IGN);
		::getrlimit(RLIMIT_FSIZE, &Before);
		const rlimit None{0, Before.rlim_max};
		::setrlimit(RLIMIT_FSIZE, &None);
	}
	~FFullDisk() { ::setrlimit(RLIMIT_FSIZE, &Before); }

private:
	rlimit Before{};
};

constexpr const TCHAR* Ended = TEXT("Your sign-in has ended. Click \"Log in\" to sign in again.");
} // namespace

// A token is renewed before it runs out and after a refusal, once for all who ask.
TEST_F(FLoginTest, RenewsInTime)
{
	LogIn(MakeTokens("1", "3600"));
	Now += 3500.0;
	EXPECT_TEXT(GetToken(), TEXT("access-1"));
	Now += 60.0;
	Server.Then(ReplyJson("200 OK", MakeTokens("2", "\"100\"")));
	TArray<FString> Tokens;
	const auto Take = [&Tokens](const FString& Token)
	{
		Tokens.Add(Token);
	};
	const TSharedPtr<void> First = Service().GetTokens().RequestToken(FString(), Take);
	const TSharedPtr<void> Second = Service().GetTokens().RequestToken(TEXT("access-1"), Take);
	TSharedPtr<void> Released = Service().GetTokens().RequestToken(FString(), Take);
	Released.Reset();
	ASSERT_TRUE(PumpUntil([&Tokens] { return Tokens.Num() == 2; }));
	EXPECT_TEXT(FString::Join(Tokens, TEXT(" ")), TEXT("access-2 access-2"));
	EXPECT_EQ(Server.GetExchanges().size(), 3);
	EXPECT_EQ(GetField(ReadForm(Server.GetExchanges()[2].Body.toStdString()), "refresh_token"), "refresh-1");

	EXPECT_TEXT(GetToken(TEXT("access-1")), TEXT("access-2"));
	EXPECT_TEXT(
		GetToken(TEXT("access-2"), ReplyJson("200 OK", R"({"token_type": "Bearer", "access_token": "access-3"})")), TEXT("access-3"));
	EndService();
	Server.Then({ReplyMetadata(Server), ReplyJson("200 OK", MakeTokens("4", "-1"))});
	EXPECT_TEXT(GetToken(TEXT("access-3")), TEXT("access-4"));
	EXPECT_EQ(GetField(ReadForm(Server.GetExchanges().last().Body.toStdString()), "refresh_token"), "refresh-2");
}

TEST_F(FLoginTest, AClockThatIsOffLogsNobodyOut)
{
	LogIn(MakeTokens("1"));
	for (const double Jump : {-1e8, 60.0})
	{
		EndService();
		TimeOfDay += Jump;
		EXPECT_TEXT(GetToken(), TEXT("access-1"));
	}
	EndService();
	TimeOfDay += 1e9;
	Server.Then({ReplyMetadata(Server), ReplyJson("503 Off", "")});
	// Old by the clock: what the server says counts.
	EXPECT_TEXT(GetToken(), TEXT("access-1"));
	EXPECT_TEXT(GetToken(FString(), ReplyJson("200 OK", MakeTokens("2"))), TEXT("access-2"));
	EXPECT_TRUE(Service().IsAuthenticated());
	EXPECT_EQ(Events, 0);
}

TEST_F(FLoginTest, OnlyARefusalOfTheServerEndsALogin)
{
	LogIn(MakeTokens("1"));
	const FScriptedServer::FHandler Rows[] = {ReplyJson("500 Oops", ""), ReplyJson("200 OK", "rubbish"), ReplyJson("400 Bad", "{}"),
		ReplyJson("400 Bad", R"({"error": "slow_down"})"), ReplyJson("429 Slow", ""), [](const FExchange& Exchange) { Exchange.Close(); },
		ReplyJson("307 Moved", "", "Location: http://127.0.0.1:1/token\r\n")};
	for (const FScriptedServer::FHandler& Handler : Rows)
	{
		EXPECT_TEXT(GetToken(TEXT("access-1"), Handler), TEXT("none"));
		EXPECT_TRUE(Service().IsAuthenticated());
	}
	EXPECT_EQ(Log.CountAtLevel("LogVorelAccount", ELogVerbosity::Warning), 7) << Log.Dump();
	EXPECT_EQ(Events, 0);
	Log.Clear();
	EXPECT_TEXT(GetToken(TEXT("access-1"), ReplyJson("400 Bad", R"({"error": "invalid_grant"})")), TEXT("none"));
	EXPECT_FALSE(Service().IsAuthenticated());
	EXPECT_TEXT(WaitForEnd(), Ended);
	EXPECT_FALSE(IsSignedInAtNextStart());
}

// Of storing a new login, too.
TEST_F(FLoginTest, ALogoutWinsAtAnyMomentOfARenewal)
{
	const FScriptedServer::FHandler ServeAll = [this, &ServeAll](const FExchange& Exchange)
	{
		Server.Then(ServeAll);
		(Exchange.Path.startsWith("/.well-known") ? ReplyMetadata(Server) : ReplyJson("200 OK", MakeTokens("1")))(Exchange);
	};
	Server.Then(ServeAll);
	for (int32 Moment = 0; Moment < 12; ++Moment)
	{
		OpenPage();
		Browse(MakeRedirect());
		EXPECT_TEXT(WaitForEnd(), TEXT("You are signed in."));
		FString Token = TEXT("?");
		const TSharedPtr<void> Request =
			Service().GetTokens().RequestToken(TEXT("access-1"), [&Token](const FString& Given) { Token = Given; });
		PumpUntil([Moment, Turns = 0]() mutable { return ++Turns > Moment; });
		Service().Logout();
		EXPECT_TRUE(Events == 0 && !Service().IsAuthenticated());
		EXPECT_TEXT(WaitForEnd(), TEXT("You are signed out."));
		EXPECT_TRUE(PumpUntil([this] { return Server.GetExchanges().last().Path == "/revoke"; }));
		EXPECT_FALSE(Token.Contains(TEXT("access")));
		EXPECT_TRUE(PumpUntil([this] { return !IsNoted("signed out"); }));
		EXPECT_FALSE(IsSignedInAtNextStart()) << Moment;
	}
}

TEST_F(FLoginTest, ProgramsDoNotLogEachOtherOut)
{
	// The other one, which is a second holder of the lock and the file as well, knows the folder by another name.
	const FTempFolder Elsewhere;
	FLoginOptions OtherOptions = Options;
	OtherOptions.DataFolder = Elsewhere.GetPath(TEXT("link"));
	std::filesystem::create_directory_symlink(*Folder.GetPath(), *OtherOptions.DataFolder);
	LogIn(MakeTokens("1"));
	FAuthorizationMetadata Metadata(Options.Issuer, Options.Limits.Http);
	FLoginSession Other(OtherOptions, Metadata);
	Other.OnChanged = [] {
	};

	// Both at once: the server sees one renewal.
	FExchange Slow;
	Server.Then([&Slow](const FExchange& Exchange) { Slow = Exchange; });
	TArray<FString> Tokens;
	const auto Take = [&Tokens](const FString& Token)
	{
		Tokens.Add(Token);
	};
	const TSharedPtr<void> First = Service().GetTokens().RequestToken(TEXT("access-1"), Take);
	ASSERT_TRUE(PumpUntil([&Slow] { return Slow.Socket != nullptr; }));
	const TSharedPtr<void> Second = Other.RequestToken(TEXT("access-1"), Take);
	PumpUntil([Turns = 0]() mutable { return ++Turns > 50; });
	EXPECT_TRUE(Tokens.IsEmpty());
	Slow.SendReply("200 OK", "application/json", MakeTokens("2"));
	ASSERT_TRUE(PumpUntil([&Tokens] { return Tokens.Num() == 2; }));
	EXPECT_TEXT(FString::Join(Tokens, TEXT(" ")), TEXT("access-2 access-2"));
	EXPECT_EQ(Server.GetExchanges().size(), 3);

	// A logout is for both.
	Server.Then(ReplyJson("200 OK", ""));
	LogOut();
	EXPECT_TRUE(PumpUntil([this] { return Server.GetExchanges().size() == 4; }));
	const TSharedPtr<void> Third = Other.RequestToken(TEXT("access-2"), Take);
	ASSERT_TRUE(PumpUntil([&Tokens] { return Tokens.Num() == 3; }));
	EXPECT_TEXT(Tokens[2], TEXT(""));
	EXPECT_TRUE(Log.Has(
		"LogVorelAccount", ELogVerbosity::Warning, TEXT("You were signed out in another window. Click \"Log in\" to sign in again.")));
}

TEST_F(FLoginTest, WhatCantBeStoredHoldsForThisRun)
{
	const auto RenewUnstored = [this]
	{
		EXPECT_TEXT(GetToken(TEXT("access-1"), ReplyJson("200 OK", MakeTokens("2"))), TEXT("access-2"));
		EXPECT_EQ(1, Log.Count("LogVorelAccount", ELogVerbosity::Display,
						 TEXT("You stay signed in until Vorel AI is closed: the sign-in could not be stored on this computer. The disk may "
							  "be full, or "
							  "the data folder closed to writing.")))
			<< Log.Dump();
		// What the server has replaced is nowhere.
		EXPECT_TRUE(std::filesystem::is_empty(*Folder.GetPath(TEXT("tokens"))));
		EXPECT_TRUE(Service().IsAuthenticated());
	};
	// No note can be made.
	std::filesystem::create_directories(*Folder.GetPath(TEXT("login.json/in the way")));
	LogInUnstored(MakeTokens("1"));
	RenewUnstored();
	EXPECT_FALSE(IsSignedInAtNextStart());
	Log.Clear();

	std::filesystem::remove_all(*Folder.GetPath(TEXT("login.json")));
	LogIn(MakeTokens("1"));
	{
		const FFullDisk FullDisk;
		RenewUnstored();
	}
	EXPECT_FALSE(IsSignedInAtNextStart());
}

TEST_F(FLoginTest, ALogoutHoldsThoughTheProgramEndsAtOnce)
{
	LogIn(MakeTokens("1"));
	Service().Logout();
	EndService();
	EXPECT_TRUE(IsNoted("signed out"));
	Server.Then(ReplyMetadata(Server));
	EXPECT_FALSE(Service().IsAuthenticated());
	EXPECT_TRUE(PumpUntil([this] { return Server.GetExchanges().last().Path == "/revoke"; }));
	EXPECT_TRUE(Server.GetExchanges().last().Body.contains("token=refresh-1&"));
	EXPECT_TRUE(PumpUntil([this] { return !IsNoted("signed out"); }));
	EXPECT_TRUE(std::filesystem::is_empty(TCHAR_TO_UTF8(*Folder.GetPath(TEXT("tokens")))));
}
