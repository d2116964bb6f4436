// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "ClientFixture.h"

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace
{
struct FFailureRow
{
	const char* Name;
	FScriptedServer::FHandler Handler;
	// What arrived before, which must be kept.
	const TCHAR* Partial;
	const TCHAR* Sentence;
};

FScriptedServer::FHandler Stream(const QByteArray& Bytes)
{
	return [Bytes](const FExchange& Exchange)
	{
		Exchange.SendStreamHead();
		Exchange.Send(Bytes);
		Exchange.Close();
	};
}

FScriptedServer::FHandler Raw(const QByteArray& Bytes)
{
	return [Bytes](const FExchange& Exchange)
	{
		Exchange.Send(Bytes);
		Exchange.Close();
	};
}

constexpr const TCHAR* BrokenOff = TEXT("The connection to the assistant broke off before the answer was complete.");

const std::vector<FFailureRow>& GetRows()
{
	static const std::vector<FFailureRow> Rows = {
		{"hangs up without a reply", [](const FExchange& Exchange) { Exchange.Close(); }, TEXT(""), BrokenOff},
		{"resets without a reply", [](const FExchange& Exchange) { Exchange.Reset(); }, TEXT(""), BrokenOff},
		{"hangs up in the middle", Stream(MakeDelta("Half")), TEXT("Half"), BrokenOff},
		{"hangs up in a chunk", Raw("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n100\r\n" + MakeDelta("Half")), TEXT("Half"),
			BrokenOff},
		{"ends a chunked body too early",
			Raw("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n" + QByteArray::number(MakeDelta("Half").size(), 16) + "\r\n" +
				MakeDelta("Half") + "\r\n0\r\n\r\n"),
			TEXT("Half"), BrokenOff},
		{"sends no HTTP", Raw("hello, who is there?\r\n\r\n"), TEXT(""), BrokenOff},
		{"400", ReplyJson("400 Bad", "{\"error\":{\"message\":\"context too long\"}}"), TEXT(""),
			TEXT("The assistant rejected the request. The conversation may be too long for it; a new chat can help. (Error 400.) It says: "
				 "context "
				 "too long")},
		{"401", ReplyJson("401 No", "{}", "WWW-Authenticate: Basic\r\n"), TEXT(""),
			TEXT("The assistant did not accept the key. Set the environment variable VOREL_ASSISTANT_KEY to a valid one. (Error 401.)")},
		{"402", ReplyJson("402 Pay"), TEXT(""), TEXT("The account at this assistant has no credits left. (Error 402.)")},
		{"403", ReplyJson("403 No"), TEXT(""), TEXT("The assistant does not allow this key to use it. (Error 403.)")},
		{"404", ReplyJson("404 Not Found", "<html>"), TEXT(""),
			TEXT("The assistant was not found at its address, or it does not have the model. Check both; many addresses end in /v1. (Error "
				 "404.)")},
		{"429", ReplyJson("429 Slow", "{\"error\":\"limit\"}", "Retry-After: 7\r\n"), TEXT(""),
			TEXT("The assistant gets too many requests at the moment. Wait a little and send the message again. (Error 429.) It asks to "
				 "wait 7 "
				 "seconds. It says: limit")},
		{"500", ReplyJson("500 Oops"), TEXT(""), TEXT("The assistant's server has a problem. Try again later. (Error 500.)")},
		{"303", ReplyJson("303 Other", "{}", "Location: /elsewhere\r\n"), TEXT(""),
			TEXT("The assistant's server refused the request. (Error 303.)")},
	};
	return Rows;
}
} // namespace

using FFailureTest = FChatClientTest;

TEST_F(FFailureTest, EveryFailureHasItsWordsKeepsWhatArrivedAndLetsTheNextMessageWork)
{
	for (const FFailureRow& Row : GetRows())
	{
		SCOPED_TRACE(Row.Name);
		Service().CreateNewConversation(TEXT("Agent"));
		TakeEvents();
		const qsizetype Before = Server.GetExchanges().size();
		Server.Then(Row.Handler);
		const FString Events = Ask(TEXT("Hi"));
		const FString Partial = Row.Partial;
		const FString Kept = Partial.IsEmpty() ? FString() : FString::Printf(TEXT("chunk(%s)* interrupted(%s) "), *Partial, *Partial);
		const FString Start = TEXT("history(0)* user(Hi)* ") + Kept + TEXT("failed(");
		EXPECT_EQ(Events, Start + Row.Sentence + TEXT(")"));
		// A question is never asked twice.
		EXPECT_EQ(Server.GetExchanges().size(), Before + 1);

		Server.Then(Answer("Fine"));
		EXPECT_EQ(Ask(TEXT("Again")), TEXT("user(Again)* chunk(Fine)* answer(Fine) completed"));
	}
}

TEST_F(FFailureTest, AServerThatIsNotThere)
{
	Server.Then(Answer("Hello"));
	Ask(TEXT("Hi"));
	const FString Host(Server.GetAddress().mid(7).constData());
	Server.StopListening();
	EXPECT_EQ(Ask(TEXT("Hi")), FString::Printf(TEXT("user(Hi)* failed(No assistant answers at %s. Is it running?)"), *Host));
}

TEST_F(FFailureTest, AServerThatFallsSilentBeforeItsAnswerOrInTheMiddle)
{
	Limits.FirstByte = Limits.BetweenBytes = 0.05;
	Server.Then(SendAndStayOpen(""));
	EXPECT_EQ(AskForFailure(), TEXT("The assistant did not begin to answer within 0.05 seconds."));
	Server.Then(SendAndStayOpen(MakeDelta("Half")));
	EXPECT_EQ(Ask(TEXT("Hi")), TEXT("user(Hi)* chunk(Half)* interrupted(Half) failed(The assistant fell silent for 0.05 seconds in the "
									"middle of its answer.)"));
}

TEST_F(FFailureTest, AServerThatAcceptsNoConnection)
{
	// A listener whose backlog is full lets a further caller wait.
	const int Listener = ::socket(AF_INET, SOCK_STREAM, 0);
	sockaddr_in Address{};
	Address.sin_family = AF_INET;
	Address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
	socklen_t Length = sizeof(Address);
	::bind(Listener, reinterpret_cast<sockaddr*>(&Address), Length);
	::listen(Listener, 0);
	::getsockname(Listener, reinterpret_cast<sockaddr*>(&Address), &Length);
	const int Caller = ::socket(AF_INET, SOCK_STREAM, 0);
	ASSERT_EQ(::connect(Caller, reinterpret_cast<sockaddr*>(&Address), Length), 0);

	Limits.Connect = 0.1;
	Endpoint.BaseUrl = FString::Printf(TEXT("http://127.0.0.1:%d/v1"), static_cast<int32>(ntohs(Address.sin_port)));
	EXPECT_EQ(AskForFailure(),
		FString::Printf(TEXT("127.0.0.1:%d did not accept a connection within 0.1 seconds."), static_cast<int32>(ntohs(Address.sin_port))));
	::close(Caller);
	::close(Listener);
}

TEST_F(FFailureTest, AServerWithoutASecureConnection)
{
	Server.bRaw = true;
	Server.Then(Raw("HTTP/1.1 400 Bad Request\r\n\r\n"));
	Endpoint.BaseUrl = Endpoint.BaseUrl.Replace(TEXT("http:"), TEXT("https:"));
	EXPECT_TRUE(AskForFailure().StartsWith(TEXT("No secure connection to 127.0.0.1:")));
}

TEST_F(FFailureTest, AServerThatNamesNoModel)
{
	Endpoint.Model.Reset();
	const std::pair<FScriptedServer::FHandler, const TCHAR*> Rows[] = {
		{ReplyJson("200 OK", "{\"data\":[]}"), TEXT("The assistant's server names no model. Choose one with --model.")},
		{SendAndStayOpen(QByteArray(9 * 1024 * 1024, ' ')), TEXT("The assistant's answer was too long and was stopped.")},
		{ReplyJson("200 OK", "what?"), TEXT("The assistant's server names no model. Choose one with --model.")},
		{ReplyJson("404 No"),
			TEXT("The assistant was not found at its address, or it does not have the model. Check both; many addresses end "
				 "in /v1. (Error 404.)")},
	};
	for (const auto& [Handler, Sentence] : Rows)
	{
		Server.Then(Handler);
		EXPECT_EQ(AskForFailure(), Sentence);
	}
}

TEST_F(FFailureTest, AnAddressThatIsNone)
{
	for (const TCHAR* Address : {TEXT("localhost:8080"), TEXT("ftp://127.0.0.1/"), TEXT("what is this"), TEXT("http://")})
	{
		FAssistantEndpoint Bad;
		Bad.BaseUrl = Address;
		Bad.Model = TEXT("m");
		UHttpChatService* const Other = NewObject<UHttpChatService>();
		Other->AddToRoot();
		Other->Initialize(Bad, Limits, FString());
		FString Failure;
		Other->OnRequestFailed.AddLambda([&Failure](const FString& Error) { Failure = Error; });
		Other->SendMessage(TEXT("Hi"));
		EXPECT_TRUE(Failure.IsEmpty());
		Tick();
		EXPECT_EQ(Failure,
			FString::Printf(TEXT("The assistant's address \"%s\" is not a web address. It must begin with http:// or https://."), Address));
		Other->RemoveFromRoot();
	}
}

TEST_F(FFailureTest, RedirectsStayWithinTheOrigin)
{
	Endpoint.ApiKey = TEXT("secret");
	FScriptedServer Elsewhere;
	Elsewhere.Then(Answer("Stolen"));
	Server.Then(ReplyJson("307 Moved", "{}", "Location: " + Elsewhere.GetAddress() + "/v1/chat/completions\r\n"));
	EXPECT_EQ(AskForFailure(),
		FString::Printf(
			TEXT("The assistant's address leads on to another server, %s, which was not contacted. If you trust it, give its address "
				 "instead."),
			*FString(Elsewhere.GetAddress().constData())));
	EXPECT_TRUE(Elsewhere.GetExchanges().isEmpty());

	Server.Then(ReplyJson("308 Moved", "{}", "Location: /v2/chat/completions\r\n"));
	Server.Then(Answer("Fine"));
	EXPECT_EQ(Ask(TEXT("Again")), TEXT("user(Again)* chunk(Fine)* answer(Fine) completed"));
	EXPECT_EQ(Server.GetExchanges().last().Path, "/v2/chat/completions");
	EXPECT_EQ(Server.GetExchanges().last().Headers["authorization"], "Bearer secret");
	EXPECT_EQ(Server.GetExchanges().last().Body, Server.GetExchanges()[1].Body);
}

TEST_F(FFailureTest, RedirectsDoNotGoRoundForEver)
{
	for (int32 Round = 0; Round < 20; ++Round)
	{
		Server.Then(ReplyJson("307 Moved", "{}", "Location: /v1/chat/completions\r\n"));
	}
	EXPECT_EQ(AskForFailure(), TEXT("The assistant's address leads round in a circle."));
	EXPECT_LT(Server.GetExchanges().size(), 10);
}
