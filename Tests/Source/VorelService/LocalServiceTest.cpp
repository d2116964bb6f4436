// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "ServiceFixture.h"

#include <thread>

using FLocalServiceTest = FServiceTest;

namespace
{
std::vector<std::string> SplitEvents(const std::string& Body)
{
	std::vector<std::string> Events;
	std::size_t Start = 0;
	for (std::size_t End = Body.find("\n\n"); End != std::string::npos; End = Body.find("\n\n", Start))
	{
		EXPECT_EQ(Body.compare(Start, 6, "data: "), 0);
		Events.push_back(Body.substr(Start + 6, End - Start - 6));
		Start = End + 2;
	}
	EXPECT_EQ(Start, Body.size());
	return Events;
}

std::string GetErrorMessage(const httplib::Result& Reply)
{
	return json::parse(Reply->body)["error"]["message"].get<std::string>();
}
} // namespace

TEST_F(FLocalServiceTest, StreamsTheAnswerInPieces)
{
	const std::string Whole = Ask("How do I set a timer?");
	const httplib::Result Reply = Post(MakeQuestion("How do I set a timer?", true).dump());
	ASSERT_TRUE(Reply);
	EXPECT_EQ(Reply->get_header_value("Content-Type"), "text/event-stream");

	const std::vector<std::string> Events = SplitEvents(Reply->body);
	ASSERT_GT(Events.size(), 100u);
	EXPECT_EQ(json::parse(Events.front())["choices"][0]["delta"]["role"], "assistant");
	EXPECT_EQ(Events.back(), "[DONE]");
	const json Finish = json::parse(Events[Events.size() - 2])["choices"][0];
	EXPECT_EQ(Finish["finish_reason"], "stop");
	EXPECT_TRUE(Finish["delta"].empty());

	std::string Joined;
	for (std::size_t Index = 1; Index + 2 < Events.size(); ++Index)
	{
		const json Chunk = json::parse(Events[Index]);
		const std::string Piece = Chunk["choices"][0]["delta"]["content"];
		EXPECT_EQ(Chunk["object"], "chat.completion.chunk");
		EXPECT_TRUE(Chunk["choices"][0]["finish_reason"].is_null());
		EXPECT_TRUE(!Piece.empty() && Piece.size() <= 6) << Piece;
		Joined += Piece;
	}
	EXPECT_EQ(Joined, Whole);
}

TEST_F(FLocalServiceTest, CountsUsageWhenAsked)
{
	json Body = MakeQuestion("How do I set a timer?", true);
	Body["stream_options"] = {{"include_usage", true}};
	const std::vector<std::string> Events = SplitEvents(Post(Body.dump())->body);
	const json Usage = json::parse(Events[Events.size() - 2]);
	EXPECT_TRUE(Usage["choices"].empty());
	EXPECT_EQ(Usage["usage"]["completion_tokens"], Events.size() - 4);
}

TEST_F(FLocalServiceTest, ListsItsModelAndServesItsPages)
{
	EXPECT_EQ(json::parse(Http->Get("/v1/models")->body)["data"][0]["id"], "vorel-guide");
	for (const char* Path : {"/", "/billing"})
	{
		const httplib::Result Page = Http->Get(Path);
		EXPECT_EQ(Page->status, 200) << Path;
		EXPECT_NE(Page->body.find("<h1>"), std::string::npos) << Path;
	}
}

TEST_F(FLocalServiceTest, RefusesBadRequestsInWords)
{
	const std::pair<const char*, const char*> Rows[] = {
		{"", "The request body is not a JSON object."},
		{"{\"messages\": [", "The request body is not a JSON object."},
		{"[]", "The request body is not a JSON object."},
		{"{}", "\"messages\" is missing or empty."},
		{"{\"messages\": []}", "\"messages\" is missing or empty."},
		{"{\"messages\": [7]}", "Each message needs a \"role\" and a \"content\"."},
		{"{\"messages\": [{\"role\": \"user\"}]}", "Each message needs a \"role\" and a \"content\"."},
		{"{\"messages\": [{\"role\": \"user\", \"content\": 1}]}", "Each message needs a \"role\" and a \"content\"."},
		{"{\"messages\": [{\"role\": \"system\", \"content\": \"x\"}]}", "\"messages\" holds no message of the role \"user\"."},
	};
	for (const auto& [Body, Message] : Rows)
	{
		const httplib::Result Reply = Post(Body);
		ASSERT_TRUE(Reply) << Body;
		EXPECT_EQ(Reply->status, 400) << Body;
		EXPECT_EQ(GetErrorMessage(Reply), Message) << Body;
	}
	EXPECT_EQ(Ask("How do I set a timer?").find("This is Vorel's"), 0u);
}

TEST_F(FLocalServiceTest, RefusesUnknownAddressesAndMethods)
{
	EXPECT_EQ(Http->Get("/v1/nothing")->status, 404);
	EXPECT_EQ(GetErrorMessage(Http->Get("/../etc/passwd")), "There is nothing at this address.");
	const httplib::Result Reply = Http->Get("/v1/chat/completions");
	EXPECT_EQ(Reply->status, 405);
	EXPECT_EQ(Reply->get_header_value("Allow"), "POST");
	EXPECT_EQ(GetErrorMessage(Reply), "Use POST here.");
	EXPECT_EQ(Http->Delete("/billing")->status, 405);
}

TEST_F(FLocalServiceTest, RefusesRequestsOfWebPages)
{
	const std::string Body = MakeQuestion("How do I set a timer?", false).dump();
	EXPECT_EQ(Http->Post("/v1/chat/completions", {{"Host", "evil.example"}}, Body, "application/json")->status, 403);
	EXPECT_EQ(Http->Post("/v1/chat/completions", {{"Origin", "http://evil.example"}}, Body, "text/plain")->status, 403);
	EXPECT_EQ(Http->Post("/v1/chat/completions", {{"Origin", Service->GetAddress()}}, Body, "application/json")->status, 200);
}

TEST_F(FLocalServiceTest, RefusesTooLargeBodies)
{
	Start({.PieceInterval = {}, .MaxRequestBytes = 1000});
	const httplib::Result Reply = Post(MakeQuestion(std::string(2000, 'x'), false).dump());
	ASSERT_TRUE(Reply);
	EXPECT_EQ(Reply->status, 413);
	EXPECT_EQ(GetErrorMessage(Reply), "The request is too large.");
	EXPECT_NE(Ask("timer").find("**Timers**"), std::string::npos);
}

TEST_F(FLocalServiceTest, ServesTheNextClientAfterOneThatWentAway)
{
	Start({.PieceInterval = {}, .MaxConnections = 1});
	for (int Round = 0; Round < 3; ++Round)
	{
		httplib::Request Request;
		Request.method = "POST";
		Request.path = "/v1/chat/completions";
		Request.body = MakeQuestion("How do I set a timer?", true).dump();
		Request.content_receiver = [](const char*, std::size_t, std::uint64_t, std::uint64_t)
		{
			return false;
		};
		EXPECT_FALSE(httplib::Client(Service->GetAddress()).send(Request));
	}
	EXPECT_NE(Ask("timer").find("**Timers**"), std::string::npos);
}

TEST_F(FLocalServiceTest, ServesMoreClientsThanConnectionsOneAfterTheOther)
{
	Start({.PieceInterval = {}, .MaxConnections = 2});
	std::atomic<int> Answered = 0;
	std::vector<std::thread> Clients;
	for (int Client = 0; Client < 6; ++Client)
	{
		Clients.emplace_back(
			[this, &Answered]
			{
				httplib::Client Own(Service->GetAddress());
				Own.set_bearer_token_auth(OwnerKey);
				const httplib::Result Reply = Own.Post("/v1/chat/completions", MakeQuestion("timer", true).dump(), "application/json");
				Answered += Reply && Reply->status == 200 ? 1 : 0;
			});
	}
	for (std::thread& Client : Clients)
	{
		Client.join();
	}
	EXPECT_EQ(Answered, 6);
}

TEST_F(FLocalServiceTest, BreaksOffTheAnswersUnderWayWhenItStops)
{
	Start({.PieceInterval = std::chrono::hours(1)});
	std::thread Client(
		[Address = Service->GetAddress()]
		{
			httplib::Client Own(Address);
			Own.set_bearer_token_auth(OwnerKey);
			EXPECT_FALSE(Own.Post("/v1/chat/completions", MakeQuestion("timer", true).dump(), "application/json"));
		});
	httplib::Client(Service->GetAddress()).Get("/");
	Service.reset();
	Client.join();
}
