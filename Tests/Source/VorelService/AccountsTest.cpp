// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "SignInFixture.h"

#include <future>

class FAccountsTest : public FSignInTest
{
protected:
	void SetUp() override { StartWithPasswords(); }

	int TryPassword(const std::string& Name, const std::string& Password) { return SignIn(Name, Password)->status; }

	// As a browser does with its cookie.
	httplib::Result GetBilling() { return Http->Get("/billing", {{"Cookie", "other=1; " + Cookie + "; more=2"}}); }
	httplib::Result PostWithCookie(const char* Path, const FFields& Form) { return PostForm(Path, Form, {{"Cookie", Cookie}}); }

	static std::string CutValue(const std::string& SetCookie) { return SetCookie.substr(0, SetCookie.find(';')); }

	std::string Cookie;
};

TEST_F(FAccountsTest, AsksForNameAndPassword)
{
	const std::string Wrong = "The name or the password is wrong.";
	const std::tuple<const char*, const char*, bool> Rows[] = {
		{"Ada", "password of ada", true},
		{"  \uFF21dA\t", "password of ada", true},
		{"Ada", "password of grace", false},
		{"Ada", "Password of ada", false},
		{"Ada", "", false},
		{"Nobody", "password of ada", false},
		{"", "password of ada", false},
		{"Ada' OR '1'='1", "password of ada", false},
		{"\xFF\xFE", "password of ada", false},
	};
	for (const auto& [Name, Password, bGood] : Rows)
	{
		const httplib::Result Reply = SignIn(Name, Password);
		EXPECT_EQ(Reply->status, bGood ? 303 : 400) << Name;
		EXPECT_EQ(GetError(Reply), bGood ? "" : Wrong) << Name;
		EXPECT_EQ(Reply->body.find("password of"), std::string::npos);
	}
	EXPECT_EQ(SignIn("Ada", std::string(5000, 'x'))->status, 400);
}

TEST_F(FAccountsTest, KeepsADirectoryOfAccounts)
{
	std::string Error;
	const std::unique_ptr<FAccountDirectory> Accounts = FAccountDirectory::Open(GetDataFile(), Error);
	ASSERT_TRUE(Accounts) << Error;
	const std::tuple<std::string, const char*, const char*> Rows[] = {
		{" aDA ", "long enough", "There is an account of that name already."},
		{"A\u200Bda", "long enough", "There is an account of that name already."},
		{" ", "long enough", "Please type a name."},
		{"two\nlines", "long enough", "The name holds a character that can't be shown."},
		{"turned \u202E around", "long enough", "The name holds a character that can't be shown."},
		{std::string(65, 'x'), "long enough", "The name is too long. It may have 64 characters."},
		{"\x80", "long enough", "The name can't be read."},
		{"Edsger", "short 7", "The password is too short. It needs at least 8 characters."},
		{"Edsger", "\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9", "The password is too short. It needs at least 8 characters."},
		{" Ådne Øster-Łódź 東京 ", "long enough", ""},
	};
	for (const auto& [Name, Password, Problem] : Rows)
	{
		EXPECT_EQ(Accounts->Add(Name, Password, Error), std::string(Problem).empty()) << Name;
		EXPECT_EQ(Error, Problem) << Name;
	}
	std::vector<std::string> Names;
	EXPECT_TRUE(Accounts->List(Names, Error));
	EXPECT_EQ(Names, std::vector<std::string>({"Ada", "Grace", "Ådne Øster-Łódź 東京"}));

	const auto [Access, RefreshToken] = GetTokens(UseCode(GetCode("Ada", "password of ada")));
	const auto [GraceAccess, Unused] = GetTokens(UseCode(GetCode("Grace", "password of grace")));
	Cookie = CutValue(SignIn("Ada", "password of ada", {})->get_header_value("Set-Cookie"));
	EXPECT_NE(GetBilling()->body.find("<bdi>Ada</bdi>"), std::string::npos);
	EXPECT_TRUE(Accounts->SetPassword("ada", "another password", Error)) << Error;
	EXPECT_EQ(GetBilling()->body.find("<bdi>Ada</bdi>"), std::string::npos);
	EXPECT_EQ(GetUserStatus(Access), 401);
	EXPECT_EQ(GetError(Refresh(RefreshToken)), "invalid_grant");
	EXPECT_EQ(TryPassword("Ada", "password of ada"), 400);
	EXPECT_EQ(TryPassword("Ada", "another password"), 303);
	EXPECT_EQ(GetUserStatus(GraceAccess), 200);
	Cookie = CutValue(SignIn("Grace", "password of grace", {})->get_header_value("Set-Cookie"));
	EXPECT_TRUE(Accounts->Remove("GRACE", Error)) << Error;
	EXPECT_EQ(GetUserStatus(GraceAccess), 401);
	EXPECT_NE(GetBilling()->body.find("href=\"/login\""), std::string::npos);
	EXPECT_FALSE(Accounts->Remove("Grace", Error));
	EXPECT_EQ(Error, "There is no account of that name.");
}

TEST_F(FAccountsTest, LeavesTheNamesOfAccountsToThem)
{
	StartOnFile({});
	EXPECT_EQ(GetError(SignIn("ada")), "That name is taken here.");
	EXPECT_EQ(GetCode("ada"), "");
	EXPECT_NE(GetCode("Lin"), "");
}

TEST_F(FAccountsTest, SignsNobodyInByAPasswordOfBefore)
{
	FFields Form = ReadForm(OpenLogin(MakeRequest())->body);
	Form.insert({{"name", "Ada"}, {"password", "password of ada"}, {"action", "allow"}});
	// One password is compared after the other, so that most wait while it is changed.
	std::vector<std::future<httplib::Result>> Replies(5);
	for (std::future<httplib::Result>& Reply : Replies)
	{
		Reply = std::async(std::launch::async, [&] { return Connect(*Service)->Post("/login", Form); });
	}
	std::string Error;
	EXPECT_TRUE(FAccountDirectory::Open(GetDataFile(), Error)->SetPassword("Ada", "another password", Error)) << Error;
	for (std::future<httplib::Result>& Reply : Replies)
	{
		EXPECT_EQ(UseCode(GetQueryField(Reply.get()->get_header_value("Location"), "code"))->status, 400);
	}
}

TEST_F(FAccountsTest, MakesWhoGuessesWaitLongerAndLonger)
{
	for (int Try = 0; Try < 5; ++Try)
	{
		EXPECT_EQ(TryPassword("Ada", "a guess"), 400);
	}
	for (const int Pause : {1, 2, 4, 8})
	{
		const httplib::Result Reply = SignIn(" ADA", "password of ada");
		EXPECT_EQ(Reply->status, 429);
		EXPECT_EQ(Reply->get_header_value("Retry-After"), std::to_string(Pause));
		EXPECT_EQ(GetError(Reply),
			"Too many tries. Please wait " + (Pause == 1 ? "a second" : std::to_string(Pause) + " seconds") + " and try again.");
		Time += Pause;
		EXPECT_EQ(TryPassword("Ada", "a guess"), 400);
	}
	EXPECT_EQ(TryPassword("Grace", "password of grace"), 303);
	Time += 16;
	EXPECT_EQ(TryPassword("Ada", "password of ada"), 303);
	EXPECT_EQ(TryPassword("Ada", "a guess"), 400) << "forgiven";
}

TEST_F(FAccountsTest, BoundsTheTriesOfAllNamesTogether)
{
	// Too long to be hashed, which takes its time.
	const std::string Guess(2000, 'x');
	int Tries = 0;
	while (TryPassword("name " + std::to_string(Tries), Guess) == 400 && Tries < 100)
	{
		++Tries;
	}
	EXPECT_EQ(Tries, 60);
	EXPECT_EQ(SignIn("Ada", "password of ada")->get_header_value("Retry-After"), "2");
	Time += 2;
	EXPECT_EQ(TryPassword("Ada", "password of ada"), 303);
	EXPECT_EQ(TryPassword("Ada", "password of ada"), 303) << "a good one takes nothing away";
}

TEST_F(FAccountsTest, KeepsABrowserSignedIn)
{
	EXPECT_NE(Http->Get("/billing")->body.find("href=\"/login\""), std::string::npos);
	Cookie = "vorel_session=chosen-by-somebody";
	FFields Form = ReadForm(Http->Get("/login")->body);
	Form.insert({{"name", "Ada"}, {"password", "password of ada"}});
	const httplib::Result Reply = PostWithCookie("/login", Form);
	EXPECT_EQ(Reply->status, 303);
	EXPECT_EQ(Reply->get_header_value("Location"), "/billing");
	const std::string Set = Reply->get_header_value("Set-Cookie");
	EXPECT_EQ(Set.find("vorel_session="), 0u);
	EXPECT_TRUE(Set.ends_with("; Path=/; Max-Age=604800; HttpOnly; SameSite=Lax")) << Set;
	EXPECT_NE(CutValue(Set), Cookie);
	EXPECT_EQ(GetBilling()->body.find("<bdi>Ada</bdi>"), std::string::npos) << "a session begins anew";

	Cookie = CutValue(Set);
	const FFields Billing = ReadForm(GetBilling()->body);
	const std::string First = Cookie;
	Cookie = CutValue(SignIn("Grace", "password of grace", {})->get_header_value("Set-Cookie"));
	EXPECT_EQ(PostWithCookie("/billing", Billing)->status, 400) << "a form for somebody else";
	Cookie = First;
	EXPECT_EQ(PostWithCookie("/billing", {})->status, 400);
	EXPECT_NE(PostWithCookie("/billing", Billing)->body.find("Your credits are full again."), std::string::npos);
	const std::string Second = CutValue(PostWithCookie("/login", Form)->get_header_value("Set-Cookie"));
	EXPECT_EQ(GetBilling()->body.find("<bdi>Ada</bdi>"), std::string::npos) << "one session for one browser";
	Cookie = Second;
	EXPECT_EQ(PostWithCookie("/logout", {})->status, 400);
	EXPECT_NE(GetBilling()->body.find("<bdi>Ada</bdi>"), std::string::npos);
	EXPECT_EQ(PostWithCookie("/logout", Billing)->get_header_value("Set-Cookie").find("vorel_session=; Path=/; Max-Age=0;"), 0u);
	EXPECT_EQ(GetBilling()->body.find("<bdi>Ada</bdi>"), std::string::npos);

	StartOnFile({.bPasswords = true, .PublicUrl = "https://vorel.example"});
	const std::string Secure = SignIn("Ada", "password of ada", {})->get_header_value("Set-Cookie");
	EXPECT_EQ(Secure.find("__Host-vorel_session="), 0u);
	EXPECT_TRUE(Secure.ends_with("; Secure"));
}

TEST_F(FSignInTest, TakesACreditForAnAnswerInAgentMode)
{
	StartOnFile({.DailyCredits = 2});
	const std::string Access = GetTokens(UseCode(GetCode("Ada"))).first;
	EXPECT_EQ(AskIn("chat", Access)->status, 200);
	EXPECT_EQ(Http->Post("/v1/chat/completions", {{"Authorization", "bearer " + Access}}, "{}", "application/json")->status, 400);
	EXPECT_EQ(AskIn("agent", Access)->status, 200);
	EXPECT_EQ(AskIn("", Access)->status, 200);
	EXPECT_EQ(AskIn("agent", Access)->status, 402);
	EXPECT_EQ(AskIn("chat", Access)->status, 200);

	EXPECT_NE(PostForm("/billing", ReadForm(Http->Get("/billing")->body))->body.find("<strong>2</strong> of 2"), std::string::npos);
	EXPECT_EQ(AskIn("agent", Access)->status, 200);
	EXPECT_EQ(
		json::parse(Get("/v1/credits", Access)->body), json({{"credits", 1}, {"daily_credits", 2}, {"resets_at", "2026-09-22T00:00:00Z"}}));

	Time = Time / 86'400 * 86'400 + 86'399;
	const std::string Later = GetTokens(UseCode(GetCode("Ada"))).first;
	EXPECT_EQ(AskIn("agent", Later)->status, 200);
	EXPECT_EQ(AskIn("agent", Later)->status, 402);
	Time += 1;
	EXPECT_EQ(json::parse(Get("/v1/credits", Later)->body)["credits"], 2);
}

TEST_F(FSignInTest, GivesNothingTwiceToProgramsThatAskAtOnce)
{
	StartOnFile({.DailyCredits = 10});
	std::string Error;
	const std::unique_ptr<FLocalService> Other = Launch({.PieceInterval = {}, .DataFile = GetDataFile(), .DailyCredits = 10}, Error);
	ASSERT_TRUE(Other) << Error;
	const auto CountGood = [&](int Times, const std::function<httplib::Result(httplib::Client & Client)>& Send)
	{
		std::vector<std::future<httplib::Result>> Replies;
		for (int Program = 0; Program < Times; ++Program)
		{
			const FLocalService& To = Program % 2 ? *Service : *Other;
			Replies.push_back(std::async(std::launch::async, [&] { return Send(*Connect(To)); }));
		}
		return std::count_if(Replies.begin(), Replies.end(), [](auto& Reply) { return Reply.get()->status == 200; });
	};
	const httplib::Headers Owner = {{"Authorization", std::string("Bearer ") + OwnerKey}};
	const std::string Question = MakeQuestion("timer", false).dump();
	EXPECT_EQ(CountGood(24, [&](auto& To) { return To.Post("/v1/chat/completions", Owner, Question, "application/json"); }), 10);
	const FFields CodeForm = MakeCodeForm(GetCode("Ada"));
	EXPECT_EQ(CountGood(6, [&](auto& To) { return To.Post("/oauth/token", CodeForm); }), 1);
	const auto [Access, RefreshToken] = GetTokens(UseCode(GetCode("Ada")));
	const httplib::Headers Token = {{"Authorization", "Bearer " + Access}};
	EXPECT_EQ(CountGood(2, [&](auto& To) { return To.Get("/v1/user", Token); }), 2) << "the services share one file";
	const FFields RefreshForm = MakeRefreshForm(RefreshToken);
	EXPECT_EQ(CountGood(12, [&](auto& To) { return To.Post("/oauth/token", RefreshForm); }), 12) << "a reply may be lost";
}
