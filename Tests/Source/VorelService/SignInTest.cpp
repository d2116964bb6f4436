// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "SignInFixture.h"

#include "Store/SqliteDatabase.h"
#include "Support/LogCapture.h"

#include <set>

TEST_F(FSignInTest, SignsAProgramInAndAsksForTheNameOnce)
{
	const std::string Policy = OpenLogin(MakeRequest())->get_header_value("Content-Security-Policy");
	EXPECT_NE(Policy.find("form-action 'self' http://127.0.0.1:7777;"), std::string::npos) << Policy;
	const httplib::Result Answer = SignIn("  Zoë \"Z\" ");
	EXPECT_EQ(Answer->status, 303);
	const std::string Location = Answer->get_header_value("Location");
	EXPECT_EQ(Location.find("http://127.0.0.1:7777/callback?code="), 0u) << Location;
	EXPECT_TRUE(Location.ends_with(std::string("&state=") + State + "&iss=" + Service->GetAddress())) << Location;

	const httplib::Result Reply = UseCode(GetQueryField(Location, "code"));
	EXPECT_EQ(Reply->get_header_value("Cache-Control"), "no-store");
	const json Tokens = json::parse(Reply->body);
	EXPECT_EQ(Tokens["token_type"], "Bearer");
	EXPECT_EQ(Tokens["expires_in"], 3600);
	EXPECT_EQ(json::parse(Get("/v1/user", Tokens["access_token"])->body),
		json({{"name", "Zoë \"Z\""}, {"email", ""}, {"credits", 100}, {"daily_credits", 100}, {"roles", {"user"}}}));

	const std::string Page = OpenLogin(MakeRequest())->body;
	EXPECT_NE(Page.find("Continue as Zoë &quot;Z&quot;"), std::string::npos);
	EXPECT_EQ(Page.find("name=\"name\""), std::string::npos);
	const auto [Access, Unused] = GetTokens(UseCode(GetCode("Somebody else")));
	EXPECT_EQ(json::parse(Get("/v1/user", Access)->body)["name"], "Zoë \"Z\"");
}

TEST_F(FSignInTest, RefusesWrongRequestsOfPrograms)
{
	const char* const InWords = "";
	const std::pair<FFields, const char*> Rows[] = {
		{{{"client_id", "other"}}, InWords},
		{{{"client_id", ""}}, InWords},
		{{{"client_id", "vorel-editor"}, {"client_id", "other"}}, InWords},
		{{{"redirect_uri", ""}}, InWords},
		{{{"redirect_uri", "https://127.0.0.1:7777/callback"}}, InWords},
		{{{"redirect_uri", "http://127.0.0.1/callback"}}, InWords},
		{{{"redirect_uri", "http://127.0.0.1:/callback"}}, InWords},
		{{{"redirect_uri", "http://127.0.0.1:65536/callback"}}, InWords},
		{{{"redirect_uri", "http://127.0.0.1:07777/callback"}}, InWords},
		{{{"redirect_uri", "http://127.0.0.1:99999999999999999999/callback"}}, InWords},
		{{{"redirect_uri", "http://127.0.0.1:7777/callback/"}}, InWords},
		{{{"redirect_uri", "http://127.0.0.1:7777/callback?a=/callback"}}, InWords},
		{{{"redirect_uri", "http://127.0.0.1:7777/callback\r\nSet-Cookie: a=b"}}, InWords},
		{{{"redirect_uri", "http://127.0.0.1:7@evil.example/callback"}}, InWords},
		{{{"redirect_uri", "http://127.0.0.1.evil.example:7777/callback"}}, InWords},
		{{{"redirect_uri", "http://localhost:7777/callback"}}, InWords},
		{{{"redirect_uri", "http://[::1]:7777/callback"}, {"redirect_uri", "http://127.0.0.1:7777/callback"}}, InWords},
		{{{"response_type", ""}}, "invalid_request"},
		{{{"response_type", "token"}}, "unsupported_response_type"},
		{{{"response_mode", "fragment"}}, "invalid_request"},
		{{{"code_challenge", ""}}, "invalid_request"},
		{{{"code_challenge", "short"}}, "invalid_request"},
		{{{"code_challenge", std::string(43, '+')}}, "invalid_request"},
		{{{"code_challenge_method", ""}}, "invalid_request"},
		{{{"code_challenge_method", "plain"}}, "invalid_request"},
		{{{"state", ""}}, "invalid_request"},
		{{{"state", "two\r\nlines"}}, "invalid_request"},
		{{{"state", std::string(2000, 'x')}}, "invalid_request"},
		{{{"state", "one"}, {"state", "two"}}, "invalid_request"},
		{{{"scope", "one"}, {"scope", "two"}}, "invalid_request"},
	};
	const std::string Token = ReadForm(OpenLogin(MakeRequest())->body).find("form_token")->second;
	for (const auto& [Changes, Error] : Rows)
	{
		FFields Form = MakeRequest(Changes);
		Form.insert({{"name", "Ada"}, {"form_token", Token}, {"action", "allow"}});
		for (const httplib::Result& Reply : {OpenLogin(MakeRequest(Changes)), PostForm("/login", Form)})
		{
			const std::string Location = Reply->get_header_value("Location");
			const std::string Row = Changes.begin()->first + " " + Changes.begin()->second;
			EXPECT_EQ(Reply->status, Error == InWords ? 400 : 303) << Row;
			EXPECT_EQ(GetQueryField(Location, "error"), Error) << Row;
			EXPECT_EQ(GetQueryField(Location, "code"), "") << Row;
			EXPECT_EQ(Location.empty(), Error == InWords) << Row;
			EXPECT_FALSE(Reply->has_header("Set-Cookie")) << Row;
		}
	}
	EXPECT_EQ(OpenLogin(MakeRequest({{"redirect_uri", "http://[::1]:1/callback"}}))->status, 200);
}

TEST_F(FSignInTest, TakesOnlyFormsOfItsOwnPages)
{
	const FFields Form = ReadForm(OpenLogin(MakeRequest())->body);
	const auto Send = [&](const httplib::Headers& Headers, const FFields& Changes)
	{
		FFields Sent = Form;
		for (const auto& [Name, Value] : Changes)
		{
			Sent.find(Name)->second = Value;
		}
		Sent.insert({{"name", "Ada"}, {"action", "allow"}});
		return PostForm("/login", Sent, Headers)->status;
	};
	EXPECT_EQ(Send({{"Origin", "null"}}, {}), 403);
	EXPECT_EQ(Send({{"Origin", "http://127.0.0.1:1"}}, {}), 403);
	EXPECT_EQ(Send({{"Sec-Fetch-Site", "cross-site"}}, {}), 403);
	EXPECT_EQ(Send({{"Sec-Fetch-Site", "same-site"}}, {}), 403);
	EXPECT_EQ(Send({}, {{"form_token", ""}}), 400);
	EXPECT_EQ(Send({}, {{"form_token", std::to_string(Time + 10) + "."}}), 400);
	EXPECT_EQ(Http->Post("/login?" + httplib::detail::params_to_query_str(Form), {}, FFields{{"name", "Ada"}})->status, 400);
	Time += 3600;
	EXPECT_EQ(Send({}, {}), 400);
	Time -= 1;
	EXPECT_EQ(Send({{"Origin", Service->GetAddress()}, {"Sec-Fetch-Site", "same-origin"}}, {}), 303);
}

TEST_F(FSignInTest, RefusesCodesThatAreWrongInAnyWayAndNeverTakesThemAgain)
{
	const std::tuple<FFields, const char*, bool> Rows[] = {
		{{{"code_verifier", std::string(43, 'x')}}, "invalid_grant", true},
		{{{"redirect_uri", "http://127.0.0.1:7778/callback"}}, "invalid_grant", true},
		{{{"code", "unknown"}}, "invalid_grant", false},
		{{{"code_verifier", ""}}, "invalid_request", false},
		{{{"redirect_uri", ""}}, "invalid_request", false},
		{{{"code_verifier", "one"}, {"code_verifier", "two"}}, "invalid_request", false},
		{{{"client_id", "other"}}, "invalid_client", false},
		{{{"grant_type", "password"}}, "unsupported_grant_type", false},
		{{{"grant_type", ""}}, "invalid_request", false},
	};
	for (const auto& [Changes, Error, bCodeSpent] : Rows)
	{
		const std::string Code = GetCode("Ada");
		const httplib::Result Reply = UseCode(Code, Changes);
		EXPECT_EQ(Reply->status, 400) << Error;
		EXPECT_EQ(GetError(Reply), Error) << Changes.begin()->first;
		EXPECT_EQ(UseCode(Code)->status, bCodeSpent ? 400 : 200) << Changes.begin()->first;
	}
	const std::string Late = GetCode("Ada");
	Time += 60;
	EXPECT_EQ(GetError(UseCode(Late)), "invalid_grant");
	EXPECT_EQ(Http->Post("/oauth/token", "{}", "application/json")->status, 400);
}

TEST_F(FSignInTest, TakesBackAllTokensOfALogin)
{
	const auto [Kept, Unused] = GetTokens(UseCode(GetCode("Ada")));
	const auto Revoke = [this](const std::string& Token)
	{
		return PostForm("/oauth/revoke", {{"token", Token}, {"token_type_hint", "refresh_token"}, {"client_id", "vorel-editor"}})->status;
	};
	for (const char* const By : {"access token", "refresh token", "code that comes again"})
	{
		const std::string Code = GetCode("Ada");
		const auto [Access, RefreshToken] = GetTokens(UseCode(Code));
		EXPECT_EQ(GetUserStatus(Access), 200);
		Time += 600;
		EXPECT_EQ(*By == 'c' ? UseCode(Code)->status : Revoke(*By == 'a' ? Access : RefreshToken), *By == 'c' ? 400 : 200) << By;
		EXPECT_EQ(GetUserStatus(Access), 401) << By;
		EXPECT_EQ(GetError(Refresh(RefreshToken)), "invalid_grant") << By;
	}
	EXPECT_EQ(Revoke("unknown"), 200);
	EXPECT_EQ(GetUserStatus(Kept), 200);
}

TEST_F(FSignInTest, ReplacesRefreshTokensAndNoticesAThief)
{
	const auto [FirstAccess, First] = GetTokens(UseCode(GetCode("Ada")));
	Time += 3600;
	EXPECT_EQ(GetUserStatus(FirstAccess), 401);
	const auto [SecondAccess, Second] = GetTokens(Refresh(First));
	Time += 60;
	// A reply was lost, or another program shares the token.
	const auto [ThirdAccess, Third] = GetTokens(Refresh(First));
	EXPECT_EQ(std::set<std::string>({First, Second, Third}).size(), 3u);
	const auto [FourthAccess, Fourth] = GetTokens(Refresh(Second));
	for (const std::string& Access : {SecondAccess, ThirdAccess, FourthAccess})
	{
		EXPECT_EQ(GetUserStatus(Access), 200);
	}
	EXPECT_EQ(GetUserStatus(Fourth), 401) << "a refresh token is no access token";
	Time += 1;
	EXPECT_EQ(GetError(Refresh(First)), "invalid_grant");
	EXPECT_EQ(GetUserStatus(FourthAccess), 401);
	EXPECT_EQ(GetError(Refresh(Fourth)), "invalid_grant");

	const std::string Old = GetTokens(UseCode(GetCode("Ada"))).second;
	Time += 90 * 86'400;
	EXPECT_EQ(GetError(Refresh(Old)), "invalid_grant");
}

TEST_F(FSignInTest, NoticesAThiefWhoWasThereInTime)
{
	const std::string First = GetTokens(UseCode(GetCode("Ada"))).second;
	std::string Owners = GetTokens(Refresh(First)).second;
	std::string Thiefs = GetTokens(Refresh(First)).second;
	for (int Hour = 0; Hour < 2; ++Hour)
	{
		Time += 3600;
		Owners = GetTokens(Refresh(Owners)).second;
		Time += 60;
		Thiefs = GetTokens(Refresh(Thiefs)).second;
	}
	Time += 3600;
	const std::string Access = GetTokens(Refresh(Owners)).first;
	Time += 61;
	EXPECT_EQ(GetError(Refresh(Thiefs)), "invalid_grant");
	EXPECT_EQ(GetUserStatus(Access), 401);

	const std::string Used = GetTokens(UseCode(GetCode("Ada"))).second;
	GetTokens(Refresh(Used));
	Time -= 61;
	EXPECT_EQ(GetError(Refresh(Used)), "invalid_grant") << "by a clock that was set back";
}

TEST_F(FSignInTest, SaysWhatIsWrongWithItsFile)
{
	const auto [Access, RefreshToken] = GetTokens(UseCode(GetCode("Ada")));
	const char* const Sentence = "Another program has locked the service's data file.";
	{
		FLogCapture Log;
		FSqliteDatabase Other(FString(GetDataFile().c_str()), false);
		const FSqliteTransaction Lock(Other);
		const httplib::Result Renewal = Refresh(RefreshToken);
		EXPECT_EQ(Renewal->status, 503);
		EXPECT_EQ(Renewal->get_header_value("Retry-After"), "1");
		EXPECT_EQ(json::parse(Renewal->body), json({{"error", "temporarily_unavailable"}, {"error_description", Sentence}}));
		EXPECT_TRUE(
			Log.Has(TEXT("LogVorelService"), ELogVerbosity::Error, TEXT("The service's data file can't be used: database is locked")))
			<< TCHAR_TO_UTF8(Log.Dump());
		EXPECT_EQ(AskIn("chat", Access)->status, 200);
	}
	EXPECT_EQ(Refresh(RefreshToken)->status, 200);

	FSqliteDatabase(FString(GetDataFile().c_str()), false).Execute("DROP TABLE tokens");
	const httplib::Result Damaged = Get("/v1/user", Access);
	EXPECT_EQ(Damaged->status, 503);
	EXPECT_EQ(json::parse(Damaged->body)["error"]["message"], "The service failed to answer.");
}

TEST_F(FSignInTest, StoresNoSecret)
{
	StartWithPasswords();
	const std::string Code = GetCode("Ada", "password of ada");
	const auto [Access, RefreshToken] = GetTokens(UseCode(Code));
	const auto [SecondAccess, SecondRefresh] = GetTokens(Refresh(RefreshToken));
	const std::string Unused = GetCode("Grace", "password of grace");
	const std::string Cookie = SignIn("Grace", "password of grace", {})->get_header_value("Set-Cookie");
	const std::string Session = Cookie.substr(Cookie.find('=') + 1, 43);

	const std::string Stored = Folder.Read(TEXT("service.sqlite")) + Folder.Read(TEXT("service.sqlite-wal"));
	EXPECT_NE(Stored.find("Grace"), std::string::npos);
	for (const std::string& Secret : {Code, Access, RefreshToken, SecondAccess, SecondRefresh, Unused, Session,
			 std::string("dBjftJeZ4CVP-mB92K27uhbUJU1p1r_wW1gFWFOEjXk"), std::string("password of"), std::string(OwnerKey)})
	{
		EXPECT_GE(Secret.size(), 11u);
		EXPECT_EQ(Stored.find(Secret), std::string::npos) << Secret;
	}
}
