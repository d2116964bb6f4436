// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "ServiceFixture.h"

#include <future>

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

// What a client takes apart itself, of an answer that streams.
class FLocalServiceTest : public FServiceTest
{
protected:
	static httplib::Request MakeStreamRequest()
	{
		httplib::Request Request;
		Request.method = "POST";
		Request.path = "/v1/chat/completions";
		Request.headers = {{"Authorization", std::string("Bearer ") + OwnerKey}};
		Request.body = MakeQuestion("How do I set a timer?", true).dump();
		return Request;
	}

	// Stops the service once a client is in the middle of its work.
	void StopAmid(const std::function<void(httplib::Client& To, const std::function<void()>& Begin)>& Work)
	{
		std::promise<void> Begun;
		const auto Client = std::async(std::launch::async, [&] { Work(*Connect(*Service), [&] { Begun.set_value(); }); });
		Begun.get_future().wait();
		Service.reset();
	}
};

TEST_F(FLocalServiceTest, StreamsTheAnswerInPieces)
{
	const std::string Whole = Ask("How do I set a timer?");
	json Body = MakeQuestion("How do I set a timer?", true);
	Body["stream_options"] = {{"include_usage", true}};
	const httplib::Result Reply = Post(Body.dump());
	ASSERT_TRUE(Reply);
	EXPECT_EQ(Reply->get_header_value("Content-Type"), "text/event-stream");

	const std::vector<std::string> Events = SplitEvents(Reply->body);
	ASSERT_GT(Events.size(), 100u);
	EXPECT_EQ(json::parse(Events.front())["choices"][0]["delta"]["role"], "assistant");
	EXPECT_EQ(Events.back(), "[DONE]");
	const json Usage = json::parse(Events[Events.size() - 2]);
	EXPECT_TRUE(Usage["choices"].empty());
	EXPECT_EQ(Usage["usage"]["completion_tokens"], Events.size() - 4);
	const json Finish = json::parse(Events[Events.size() - 3])["choices"][0];
	EXPECT_EQ(Finish["finish_reason"], "stop");
	EXPECT_TRUE(Finish["delta"].empty());

	std::string Joined;
	for (std::size_t Index = 1; Index + 3 < Events.size(); ++Index)
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

TEST_F(FLocalServiceTest, ListsItsModelAndServesItsPages)
{
	EXPECT_EQ(json::parse(Http->Get("/v1/models")->body)["data"][0]["id"], "vorel-guide");
	for (const char* Path : {"/", "/billing", "/tos", "/privacy", "/plugin"})
	{
		const httplib::Result Page = Http->Get(Path);
		EXPECT_EQ(Page->status, 200) << Path;
		EXPECT_NE(Page->body.find("<h1>"), std::string::npos) << Path;
		EXPECT_EQ(Page->get_header_value("Cache-Control"), "no-store") << Path;
		EXPECT_EQ(Page->get_header_value("X-Frame-Options"), "DENY") << Path;
		EXPECT_EQ(Page->get_header_value("Referrer-Policy"), "same-origin") << Path;
		const std::string Policy = Page->get_header_value("Content-Security-Policy");
		EXPECT_EQ(Policy.find("default-src 'none'; style-src 'sha256-"), 0u) << Policy;
		EXPECT_TRUE(Policy.ends_with("'; img-src data:; form-action 'self'; base-uri 'none'; frame-ancestors 'none'")) << Policy;
		EXPECT_EQ(Policy.find("unsafe"), std::string::npos) << Policy;
		const httplib::Result Parts = Http->Get(Path, {{"Range", "bytes=0-3,0-3"}});
		EXPECT_EQ(Parts->status, 200) << Path;
		EXPECT_EQ(Parts->body.size(), Page->body.size()) << Path;
	}
	EXPECT_EQ(Http->Get("/login")->get_header_value("Location"), "/billing");
}

TEST_F(FLocalServiceTest, AsksForATokenWhereItAnswers)
{
	for (const char* const Value : {"", "Bearer ", "Bearer wrong", "Basic key-of-the-owner", "Bearer key-of-the-owne"})
	{
		const httplib::Headers Headers = {{"Authorization", Value}};
		const std::unique_ptr<httplib::Client> Stranger = Connect(*Service);
		for (const httplib::Result& Reply :
			{Stranger->Get("/v1/models", Headers), Stranger->Get("/v1/user", Headers), Stranger->Get("/v1/credits", Headers),
				Stranger->Post("/v1/chat/completions", Headers, MakeQuestion("timer", false).dump(), "application/json")})
		{
			EXPECT_EQ(Reply->status, 401) << Value;
			EXPECT_EQ(Reply->get_header_value("WWW-Authenticate").find("Bearer"), 0u) << Value;
			EXPECT_EQ(json::parse(Reply->body)["error"]["code"], "invalid_api_key") << Value;
		}
	}
	EXPECT_EQ(Http->Get("/v1/user")->status, 200);
}

TEST_F(FLocalServiceTest, RefusesBadRequestsInWords)
{
	const std::string Deep(100'000, '[');
	const std::pair<std::string, const char*> Rows[] = {
		{"{\"metadata\": " + Deep + std::string(Deep.size(), ']') + "}", "The request body is nested too deeply."},
		{Deep, "The request body is nested too deeply."},
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
		ASSERT_TRUE(Reply) << Message;
		EXPECT_EQ(Reply->status, 400) << Message;
		EXPECT_EQ(GetErrorMessage(Reply), Message) << Body.substr(0, 100);
	}
	EXPECT_EQ(Ask("How do I set a timer?").find("This is Vorel's"), 0u);
	EXPECT_EQ(GetErrorMessage(Http->Get("/../etc/passwd")), "There is nothing at this address.");
	EXPECT_EQ(GetErrorMessage(Http->Get("/v1/chat/completions")), "Use POST here.");
}

TEST_F(FLocalServiceTest, AnswersToItsOwnNamesAlone)
{
	Start({.PieceInterval = {}, .bPasswords = true, .PublicUrl = "HTTPS://Vorel.example:443"});
	const std::string Port = ':' + std::to_string(Service->GetPort());
	EXPECT_EQ(Service->GetAddress(), "https://vorel.example");
	const std::tuple<std::string, std::string, bool> Rows[] = {
		{"127.0.0.1" + Port, "", true},
		{"LocalHost" + Port, "", true},
		{"[::1]" + Port, "", true},
		{"vorel.example", "", true},
		{"vorel.example:443", "https://vorel.example", true},
		{"127.0.0.1" + Port, "https://vorel.example", true},
		{"127.0.0.1" + Port, "http://127.0.0.1" + Port, true},
		{"evil.example", "", false},
		{"127.0.0.1", "", false},
		{"127.0.0.1:1", "", false},
		{"127.0.0.1" + Port + "@evil.example", "", false},
		{"vorel.example.evil.example", "", false},
		{"vorel.example:80", "", false},
		{"127.0.0.1" + Port, "null", false},
		{"127.0.0.1" + Port, "http://evil.example", false},
		{"127.0.0.1" + Port, "http://vorel.example", false},
		{"127.0.0.1" + Port, "https://vorel.example:444", false},
		{"vorel.example", "http://localhost" + Port, false},
	};
	for (const auto& [Host, Origin, bAllowed] : Rows)
	{
		httplib::Headers Headers = {{"Host", Host}};
		if (!Origin.empty())
		{
			Headers.emplace("Origin", Origin);
		}
		const httplib::Result Reply = Http->Get("/v1/version", Headers);
		EXPECT_EQ(Reply->status, bAllowed ? 200 : 403) << Host << " " << Origin;
		const std::string Fault = Origin.empty() ? "This service is not called by this name." : "This service is not called from there.";
		EXPECT_TRUE(bAllowed || GetErrorMessage(Reply) == Fault) << Reply->body;
	}
}

TEST_F(FLocalServiceTest, RefusesBodiesThatAreTooLargeOrOfUnknownLength)
{
	const std::string Question = MakeQuestion(std::string(2 * 1024 * 1024, 'x'), false).dump();
	Start({.PieceInterval = {}, .MaxRequestBytes = 3 * 1024 * 1024});
	EXPECT_EQ(Post(Question)->status, 200);
	// Whoever is still sending may not see the answer any more.
	const httplib::Result Stranger = Connect(*Service)->Post("/v1/chat/completions", Question, "application/json");
	EXPECT_TRUE(!Stranger || Stranger->status == 401);
	Start({.PieceInterval = {}, .MaxRequestBytes = 1000});
	const httplib::Result Reply = Post(MakeQuestion(std::string(2000, 'x'), false).dump());
	ASSERT_TRUE(Reply);
	EXPECT_EQ(Reply->status, 413);
	EXPECT_EQ(GetErrorMessage(Reply), "The request is too large.");
	EXPECT_EQ(Http->Post("/oauth/token", std::string(70'000, 'x'), "text/plain")->status, 413);
	EXPECT_EQ(Http->Post("/oauth/token", {{"Content-Encoding", "gzip"}}, "x", "text/plain")->status, 415);
	const httplib::Headers Chunked = {{"Transfer-Encoding", "chunked"}};
	EXPECT_EQ(Http->Post("/oauth/token", Chunked, "1\r\nx\r\n0\r\n\r\n", "text/plain")->status, 411);
	EXPECT_NE(Ask("timer").find("**Timers**"), std::string::npos);
}

TEST_F(FLocalServiceTest, BoundsTheHeadOfARequest)
{
	const auto Send = [&](int Count)
	{
		httplib::Headers Headers;
		for (int Header = 0; Header < Count; ++Header)
		{
			Headers.emplace("X-Header", std::string(1000, 'x'));
		}
		return Http->Get("/v1/version", Headers);
	};
	// Whoever is still sending may not see the answer any more.
	const httplib::Result Long = Send(70);
	EXPECT_EQ(Send(50)->status, 200);
	EXPECT_TRUE(!Long || Long->status == 400);
	EXPECT_EQ(Http->Get("/" + std::string(10'000, 'x'))->status, 414);
	EXPECT_FALSE(Http->Get("/" + std::string(70'000, 'x')));
}

TEST_F(FLocalServiceTest, DoesNotStartWhereItMayNotOrCannot)
{
	const int Taken = Service->GetPort();
	const std::string Text = std::string(VOREL_GUIDE_FOLDER) + "/Timers.md";
	const std::string Alone = "Without passwords the service is for this machine alone, and listens on no other address.";
	const std::string Nowhere = ", since no browser could reach it there.";
	const std::string Everywhere = "A service that listens at all addresses has to know the public address by which it is reached.";
	const std::pair<FLocalServiceOptions, std::string> Rows[] = {
		{{.bPasswords = true, .ListenHost = "0.0.0.0"}, Everywhere},
		{{.bPasswords = true, .ListenHost = "0"}, Everywhere},
		{{.bPasswords = true, .ListenHost = "::"}, Everywhere},
		{{.bPasswords = true, .ListenHost = "foo_bar"}, "The service can't listen at foo_bar" + Nowhere},
		{{.bPasswords = true, .ListenHost = "fe80::1%lo"}, "The service can't listen at fe80::1%lo" + Nowhere},
		{{.ListenHost = "127.example.org"}, Alone},
		{{.Port = Taken}, "The service can't listen at 127.0.0.1, port " + std::to_string(Taken) + ". Another program may use it."},
		{{.ListenHost = "0.0.0.0"}, Alone},
		{{.PublicUrl = "https://vorel.example"}, Alone},
		{{.bPasswords = true, .PublicUrl = "https://vorel.example/path"},
			"The public address has to be a scheme, a host and a port alone, like https://vorel.example.org."},
		{{.DataFile = Text}, Text + " is damaged."},
	};
	for (const auto& [Options, Problem] : Rows)
	{
		std::string Error;
		EXPECT_FALSE(Launch(Options, Error));
		EXPECT_EQ(Error, Problem);
	}
	Start({.ListenHost = "127.1"});
	EXPECT_EQ(Http->Get("/tos")->status, 200);
	Start({.bPasswords = true, .ListenHost = "0.0.0.0", .PublicUrl = "https://vorel.example"});
	EXPECT_EQ(Http->Get("/tos")->status, 200);
}

TEST_F(FLocalServiceTest, ServesTheNextClientAfterOneThatWentAway)
{
	Start({.PieceInterval = {}, .MaxConnections = 1});
	for (int Round = 0; Round < 3; ++Round)
	{
		httplib::Request Request = MakeStreamRequest();
		Request.content_receiver = [](const char* Bytes, std::size_t, std::uint64_t, std::uint64_t)
		{
			EXPECT_EQ(*Bytes, 'd');
			return false;
		};
		EXPECT_FALSE(Connect(*Service)->send(Request));
	}
	std::vector<std::future<std::string>> Waiting(3);
	for (std::future<std::string>& Answer : Waiting)
	{
		Answer = std::async(std::launch::async, [this] { return Connect(*Service)->send(MakeStreamRequest())->body; });
	}
	for (std::future<std::string>& Answer : Waiting)
	{
		EXPECT_TRUE(Answer.get().ends_with("data: [DONE]\n\n"));
	}
}

TEST_F(FLocalServiceTest, BreaksOffTheAnswersUnderWayWhenItStops)
{
	Start({.PieceInterval = std::chrono::hours(1)});
	StopAmid(
		[](httplib::Client& To, const auto& Begin)
		{
			httplib::Request Request = MakeStreamRequest();
			Request.response_handler = [&Begin](const httplib::Response& Reply)
			{
				EXPECT_EQ(Reply.status, 200);
				Begin();
				return true;
			};
			EXPECT_FALSE(To.send(Request));
		});
}

TEST_F(FLocalServiceTest, DoesNotWaitForWhoStillSendsWhenItStops)
{
	StopAmid(
		[](httplib::Client& To, const auto& Begin)
		{
			const auto SendByte = [&Begin](std::size_t Sent, std::size_t, httplib::DataSink& Sink)
			{
				if (Sent == 1)
				{
					Begin();
				}
				return Sink.write("x", 1);
			};
			EXPECT_FALSE(To.Post("/v1/chat/completions", MakeStreamRequest().headers, 10'000'000, SendByte, "application/json"));
		});
}
