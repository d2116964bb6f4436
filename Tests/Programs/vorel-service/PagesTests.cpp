// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Programs/vorel-service/RunningService.h"

#include <QRegularExpression>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace
{
class ServicePages : public testing::Test
{
protected:
	std::string Fetch(const char* Path) { return Service.Get(Path)->body; }

	FTempFolder Folder;
	FRunningService Service{Folder};
};

// What the pattern's last group matches.
std::vector<std::string> FindAll(const std::string& Page, const std::string& Pattern)
{
	std::vector<std::string> Found;
	QRegularExpressionMatchIterator Matches = QRegularExpression(QString::fromStdString(Pattern)).globalMatch(QString::fromStdString(Page));
	while (Matches.hasNext())
	{
		const QRegularExpressionMatch Match = Matches.next();
		Found.push_back(Match.captured(Match.lastCapturedIndex()).toStdString());
	}
	return Found;
}

} // namespace

TEST_F(ServicePages, SayWhatWasWrongAndRepeatItHarmlessly)
{
	httplib::Client Browser(Service.Address);
	const std::string FormToken = FindAll(Fetch("/login"), "name=\"form_token\" value=\"([^\"]+)\"").at(0);
	const httplib::Result Reply =
		Browser.Post("/login", httplib::Params{{"form_token", FormToken}, {"name", "<b>\"'&"}, {"password", "wrong"}, {"action", "allow"}});
	ASSERT_TRUE(Reply);
	EXPECT_EQ(Reply->status, 400);
	EXPECT_NE(Reply->body.find("value=\"&lt;b&gt;&quot;&#39;&amp;\""), std::string::npos);
	EXPECT_EQ(FindAll(Reply->body, "role=\"alert\" id=\"([a-z]+)\">[^<]").size(), 1u);
	EXPECT_EQ(FindAll(Reply->body, "aria-describedby=\"([a-z]+)\""), (std::vector<std::string>{"problem", "problem"}));
	EXPECT_EQ(FindAll(Reply->body, "<input id=\"([a-z]+)\"[^>]* autofocus>"), std::vector<std::string>{"password"});
	EXPECT_EQ(FindAll(Reply->body, "autocomplete=\"([a-z-]+)\""), (std::vector<std::string>{"username", "current-password"}));
}

TEST_F(ServicePages, AllThatIsDescribedIsThere)
{
	const nlohmann::json Description = nlohmann::json::parse(Fetch("/openapi.json"));
	EXPECT_EQ(Description["servers"][0]["url"], Service.Address);
	EXPECT_EQ(Description["components"]["securitySchemes"]["account"]["flows"]["authorizationCode"]["tokenUrl"],
		nlohmann::json::parse(Fetch("/.well-known/oauth-authorization-server"))["token_endpoint"]);
	for (const auto& [Path, Operations] : Description["paths"].items())
	{
		httplib::Client Client(Service.Address);
		const httplib::Result Wrong = Client.Put(Path, "", "text/plain");
		std::string Methods;
		for (const auto& [Method, Operation] : Operations.items())
		{
			Methods += (Methods.empty() ? "" : ", ") + Method;
			const httplib::Result Reply = Method == "get" ? Client.Get(Path) : Client.Post(Path, "", "application/x-www-form-urlencoded");
			EXPECT_TRUE(Operation["responses"].contains(std::to_string(Reply->status))) << Method << Path << Reply->status;
		}
		std::transform(Methods.begin(), Methods.end(), Methods.begin(), ::toupper);
		EXPECT_EQ(Wrong->get_header_value("Allow"), Methods) << Path;
	}
}
