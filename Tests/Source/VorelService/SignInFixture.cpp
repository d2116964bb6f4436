// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "SignInFixture.h"

// All that has a meaning in a page or an address. The client decodes the header once, so that the last would show what was not encoded.
const char* const FSignInTest::State = "a \"b\"&<c>=' %26";

namespace
{
// The pair that RFC 7636 gives as its example.
constexpr const char* Verifier = "dBjftJeZ4CVP-mB92K27uhbUJU1p1r_wW1gFWFOEjXk";
constexpr const char* Challenge = "E9Melhoa2OwvFrEMTJguCHaoeK1t8URWbuGJSstw-cM";
constexpr const char* Redirect = "http://127.0.0.1:7777/callback";

FFields Change(FFields Fields, const FFields& Changes)
{
	for (const auto& [Name, Value] : Changes)
	{
		Fields.erase(Name);
	}
	Fields.insert(Changes.begin(), Changes.end());
	return Fields;
}

// What stands between two texts, the first time at or behind a position, which is moved behind it; empty where that is nowhere.
std::string Cut(const std::string& Text, const std::string& Before, const std::string& After, std::size_t& Position)
{
	const std::size_t Found = Text.find(Before, Position);
	Position = Found == std::string::npos ? Found : Found + Before.size();
	return Found == std::string::npos ? std::string() : Text.substr(Position, Text.find(After, Position) - Position);
}

std::string Unescape(std::string Text)
{
	for (const auto& [Entity, Character] :
		{std::pair<std::string, char>("&lt;", '<'), {"&gt;", '>'}, {"&quot;", '"'}, {"&#39;", '\''}, {"&amp;", '&'}})
	{
		for (std::size_t Found = 0; (Found = Text.find(Entity, Found)) != std::string::npos; ++Found)
		{
			Text.replace(Found, Entity.size(), 1, Character);
		}
	}
	return Text;
}
} // namespace

void FSignInTest::StartOnFile(FLocalServiceOptions Options)
{
	Options.PieceInterval = {};
	Options.DataFile = GetDataFile();
	Start(Options);
	Http->set_bearer_token_auth("");
}

void FSignInTest::StartWithPasswords()
{
	std::string Error;
	const std::unique_ptr<FAccountDirectory> Accounts = FAccountDirectory::Open(GetDataFile(), Error);
	ASSERT_TRUE(Accounts && Accounts->Add("Ada", "password of ada", Error) && Accounts->Add("Grace", "password of grace", Error)) << Error;
	StartOnFile({.bPasswords = true});
}

FFields FSignInTest::MakeRequest(const FFields& Changes)
{
	return Change({{"response_type", "code"}, {"client_id", "vorel-editor"}, {"redirect_uri", Redirect}, {"code_challenge", Challenge},
					  {"code_challenge_method", "S256"}, {"state", State}},
		Changes);
}

FFields FSignInTest::ReadForm(const std::string& Html)
{
	FFields Fields;
	for (std::size_t Position = 0; Position != std::string::npos;)
	{
		const std::string Name = Cut(Html, "<input type=\"hidden\" name=\"", "\"", Position);
		if (Position != std::string::npos)
		{
			Fields.emplace(Name, Unescape(Cut(Html, "value=\"", "\"", Position)));
		}
	}
	return Fields;
}

httplib::Result FSignInTest::SignIn(const std::string& Name, const std::string& Password, const FFields& Request)
{
	return PostForm("/login", Change(ReadForm(OpenLogin(Request)->body), {{"name", Name}, {"password", Password}, {"action", "allow"}}));
}

std::string FSignInTest::GetCode(const std::string& Name, const std::string& Password)
{
	return GetQueryField(SignIn(Name, Password)->get_header_value("Location"), "code");
}

FFields FSignInTest::MakeCodeForm(const std::string& Code, const FFields& Changes)
{
	return Change({{"grant_type", "authorization_code"}, {"client_id", "vorel-editor"}, {"code", Code}, {"redirect_uri", Redirect},
					  {"code_verifier", Verifier}},
		Changes);
}

FFields FSignInTest::MakeRefreshForm(const std::string& Token)
{
	return {{"grant_type", "refresh_token"}, {"client_id", "vorel-editor"}, {"refresh_token", Token}};
}

std::pair<std::string, std::string> FSignInTest::GetTokens(const httplib::Result& Reply)
{
	EXPECT_EQ(Reply->status, 200) << Reply->body;
	const json Body = json::parse(Reply->body);
	return {Body.value("access_token", ""), Body.value("refresh_token", "")};
}

httplib::Result FSignInTest::AskIn(const char* Mode, const std::string& AccessToken)
{
	json Body = MakeQuestion("timer", false);
	Body["metadata"] = {{"vorel_mode", Mode}};
	return Http->Post("/v1/chat/completions", {{"Authorization", "Bearer " + AccessToken}}, Body.dump(), "application/json");
}

std::string GetQueryField(const std::string& Url, const std::string& Name)
{
	std::size_t Position = 0;
	const std::string Query = '&' + Cut(Url, "?", "#", Position);
	return Cut(Query, '&' + Name + '=', "&", Position = 0);
}

std::string GetError(const httplib::Result& Reply)
{
	const json Body = json::parse(Reply->body, nullptr, false);
	std::size_t Position = 0;
	Cut(Reply->body, "role=\"alert\"", ">", Position);
	return Body.is_object() ? Body.value("error", "") : Position == std::string::npos ? "" : Unescape(Cut(Reply->body, ">", "<", Position));
}
