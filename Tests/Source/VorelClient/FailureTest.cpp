// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QHostAddress>

#include "ClientFixture.h"

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

FScriptedServer::FHandler Raw(const QByteArray& Bytes)
{
	return [Bytes](const FExchange& Exchange)
	{
		Exchange.Send(Bytes);
		Exchange.Close();
	};
}

constexpr const TCHAR* BrokenOff = TEXT("The connection to the assistant broke off before the answer was complete.");

const FFailureRow Rows[] = {
	{"hangs up without a reply", [](const FExchange& Exchange) { Exchange.Close(); }, TEXT(""), BrokenOff},
	{"resets without a reply", [](const FExchange& Exchange) { Exchange.Reset(); }, TEXT(""), BrokenOff},
	{"hangs up in the middle", Raw("HTTP/1.1 200 OK\r\n\r\n" + MakeDelta("Half")), TEXT("Half"), BrokenOff},
	{"hangs up in a chunk", Raw("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n100\r\n" + MakeDelta("Half")), TEXT("Half"),
		BrokenOff},
	{"ends a chunked body too early",
		Raw("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n" + QByteArray::number(MakeDelta("Half").size(), 16) + "\r\n" +
			MakeDelta("Half") + "\r\n0\r\n\r\n"),
		TEXT("Half"), BrokenOff},
	{"sends no HTTP", Raw("hello, who is there?\r\n\r\n"), TEXT(""), BrokenOff},
	{"400", ReplyJson("400 Bad", "{\"error\":{\"message\":\"context too long\"}}"), TEXT(""),
		TEXT("The assistant rejected the request. The conversation may be too long for it; a new chat can help. (Error 400.) It says: "
			 "context too long")},
	{"401", ReplyJson("401 No", "{}", "WWW-Authenticate: Basic\r\n"), TEXT(""),
		TEXT("The assistant did not accept the key. Set the environment variable VOREL_ASSISTANT_KEY to a valid one. (Error 401.)")},
	{"402", ReplyJson("402 Pay"), TEXT(""), TEXT("The account at this assistant has no credits left. (Error 402.)")},
	{"403", ReplyJson("403 No"), TEXT(""), TEXT("The assistant does not allow this key to use it. (Error 403.)")},
	{"404", ReplyJson("404 Not Found", "<html>"), TEXT(""),
		TEXT("The assistant was not found at its address, or it does not have the model. Check both; many addresses end in /v1. (Error "
			 "404.)")},
	{"429", ReplyJson("429 Slow", "{\"error\":\"limit\"}", "Retry-After: 7\r\n"), TEXT(""),
		TEXT("The assistant gets too many requests at the moment. Wait a little and send the message again. (Error 429.) It asks to "
			 "wait 7 seconds. It says: limit")},
	{"500", ReplyJson("500 Oops"), TEXT(""), TEXT("The assistant's server has a problem. Try again later. (Error 500.)")},
	{"303", ReplyJson("303 Other", "{}", "Location: /elsewhere\r\n"), TEXT(""),
		TEXT("The assistant's server refused the request. (Error 303.)")},
};
} // namespace

using FFailureTest = FChatClientTest;

TEST_F(FFailureTest, EveryFailureHasItsWordsKeepsWhatArrivedAndLetsTheNextMessageWork)
{
	for (const FFailureRow& Row : Rows)
	{
		SCOPED_TRACE(Row.Name);
		Service().CreateNewConversation(TEXT("Agent"));
		TakeEvents();
		const qsizetype Before = Server.GetExchanges().size();
		const FString Events = Ask(TEXT("Hi"), Row.Handler);
		const FString Partial = Row.Partial;
		const FString Kept = Partial.IsEmpty() ? FString() : FString::Printf(TEXT("chunk(%s)* interrupted(%s) "), *Partial, *Partial);
		const FString Start = TEXT("history(0)* user(Hi)* ") + Kept + TEXT("failed(");
		EXPECT_EQ(Events, Start + Row.Sentence + TEXT(")"));
		// A question is never asked twice.
		EXPECT_EQ(Server.GetExchanges().size(), Before + 1);

		EXPECT_EQ(Ask(TEXT("Again"), Answer("Fine")), TEXT("user(Again)* chunk(Fine)* answer(Fine) completed"));
	}
}

TEST_F(FFailureTest, AServerThatIsNotThere)
{
	Ask(TEXT("Hi"), Answer("Hello"));
	const FString Host(Server.GetAddress().mid(7).constData());
	Server.StopListening();
	EXPECT_EQ(Ask(TEXT("Hi")), FString::Printf(TEXT("user(Hi)* failed(No assistant answers at %s. Is it running?)"), *Host));
}

TEST_F(FFailureTest, AServerThatFallsSilentBeforeItsAnswerOrInTheMiddle)
{
	Limits.FirstByte = Limits.BetweenBytes = 0.05;
	EXPECT_EQ(AskForFailure(SendAndStayOpen("")), TEXT("The assistant did not begin to answer within 0.05 seconds."));
	EXPECT_EQ(Ask(TEXT("Hi"), SendAndStayOpen(MakeDelta("Half"))),
		TEXT("user(Hi)* chunk(Half)* interrupted(Half) failed(The assistant fell silent for 0.05 seconds in the "
			 "middle of its answer.)"));
}

TEST_F(FFailureTest, AServerThatAcceptsNoConnection)
{
	// A listener whose backlog is full lets a further caller wait.
	QTcpServer Full;
	Full.setListenBacklogSize(0);
	Full.listen(QHostAddress::LocalHost);
	Full.pauseAccepting();
	QTcpSocket Caller;
	Caller.connectToHost(QHostAddress::LocalHost, Full.serverPort());
	ASSERT_TRUE(Caller.waitForConnected());
	Limits.Connect = 0.1;
	const FString Host = FString::Printf(TEXT("127.0.0.1:%d"), static_cast<int32>(Full.serverPort()));
	Endpoint.BaseUrl = TEXT("http://") + Host + TEXT("/v1");
	EXPECT_EQ(AskForFailure(), Host + TEXT(" did not accept a connection within 0.1 seconds."));
}

TEST_F(FFailureTest, AServerWithoutASecureConnection)
{
	QTcpServer Plain;
	Plain.listen(QHostAddress::LocalHost);
	QObject::connect(&Plain, &QTcpServer::newConnection, [&Plain] { Plain.nextPendingConnection()->write("HTTP/1.1 400 No\r\n\r\n"); });
	Endpoint.BaseUrl = FString::Printf(TEXT("https://127.0.0.1:%d/v1"), static_cast<int32>(Plain.serverPort()));
	EXPECT_TRUE(AskForFailure().StartsWith(TEXT("No secure connection to 127.0.0.1:")));
}

TEST_F(FFailureTest, AServerThatNamesNoModel)
{
	Endpoint.Model.Reset();
	const std::pair<FScriptedServer::FHandler, const TCHAR*> Rows[] = {
		{ReplyJson("200 OK", "{\"data\":[]}"), TEXT("The assistant's server names no model. Choose one with --model.")},
		{SendAndStayOpen(QByteArray(9 * 1024 * 1024, ' ')), TEXT("The assistant's answer was too long and was stopped.")},
		{ReplyJson("200 OK", "what?"), TEXT("The assistant's server names no model. Choose one with --model.")},
	};
	for (const auto& [Handler, Sentence] : Rows)
	{
		EXPECT_EQ(AskForFailure(Handler), Sentence);
	}
}

TEST_F(FFailureTest, AnAddressThatIsNone)
{
	for (const TCHAR* Address : {TEXT("localhost:8080"), TEXT("ftp://127.0.0.1/"), TEXT("what is this"), TEXT("http://")})
	{
		EndService();
		Endpoint.BaseUrl = Address;
		Service().SendMessage(TEXT("Hi"));
		EXPECT_FALSE(TakeEvents().Contains(TEXT("failed")));
		Tick();
		EXPECT_EQ(TakeEvents(),
			FString::Printf(
				TEXT("failed(The assistant's address \"%s\" is not a web address. It must begin with http:// or https://.)"), Address));
	}
}

TEST_F(FFailureTest, RedirectsStayWithinTheOriginAndDoNotGoRoundForEver)
{
	Endpoint.ApiKey = TEXT("secret");
	FScriptedServer Elsewhere;
	Elsewhere.Then(Answer("Stolen"));
	EXPECT_EQ(AskForFailure(ReplyJson("307 Moved", "{}", "Location: " + Elsewhere.GetAddress() + "/v1/chat/completions\r\n")),
		FString::Printf(
			TEXT("The assistant's address leads on to another server, %s, which was not contacted. If you trust it, give its address "
				 "instead."),
			*FString(Elsewhere.GetAddress().constData())));
	EXPECT_TRUE(Elsewhere.GetExchanges().isEmpty());

	Server.Then({ReplyJson("308 Moved", "{}", "Location: /v2/chat/completions\r\n"), Answer("Fine")});
	EXPECT_EQ(Ask(TEXT("Again")), TEXT("user(Again)* chunk(Fine)* answer(Fine) completed"));
	EXPECT_EQ(Server.GetExchanges().last().Path, "/v2/chat/completions");
	EXPECT_EQ(Server.GetExchanges().last().Headers["authorization"], "Bearer secret");
	EXPECT_EQ(Server.GetExchanges().last().Body, Server.GetExchanges()[1].Body);

	for (int32 Round = 0; Round < 20; ++Round)
	{
		Server.Then(ReplyJson("307 Moved", "{}", "Location: /v1/chat/completions\r\n"));
	}
	EXPECT_EQ(AskForFailure(), TEXT("The assistant's address leads round in a circle."));
	EXPECT_LT(Server.GetExchanges().size(), 13);
}
