// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QByteArray>
#include <QHash>
#include <QList>
#include <QTcpServer>
#include <QTcpSocket>

#include <functional>

// One request as it came, and the connection to write raw bytes to.
struct FExchange
{
	QTcpSocket* Socket = nullptr;
	QByteArray Method;
	QByteArray Path;
	// Names in lower case.
	QHash<QByteArray, QByteArray> Headers;
	QByteArray Body;

	void Send(const QByteArray& Bytes) const
	{
		Socket->write(Bytes);
		Socket->flush();
	}

	// A stream whose end is told by closing.
	void SendStreamHead() const { Send("HTTP/1.1 200 OK\r\nContent-Type: text/event-stream\r\nConnection: close\r\n\r\n"); }
	void SendReply(const QByteArray& Status, const QByteArray& Type, const QByteArray& Content, const QByteArray& Headers = {}) const;
	void Close() const { Socket->disconnectFromHost(); }
	void Reset() const;
};

// A server on a loopback port that does exactly what a test wrote down, one handler per request. A request without a handler is left open.
class FScriptedServer
{
public:
	using FHandler = std::function<void(const FExchange&)>;

	FScriptedServer();

	QByteArray GetAddress() const { return "http://127.0.0.1:" + QByteArray::number(Server.serverPort()); }

	void Then(FHandler Handler) { Handlers.append(std::move(Handler)); }
	void Then(std::initializer_list<FHandler> InTurn) { Handlers.append(InTurn); }

	// The requests so far.
	const QList<FExchange>& GetExchanges() const { return Exchanges; }

	// Hangs up all connections and lets nobody in any more.
	void StopListening();

private:
	void HandleBytes(QTcpSocket* Socket);

	QTcpServer Server;
	QList<FHandler> Handlers;
	QList<FExchange> Exchanges;
	QHash<QTcpSocket*, QByteArray> Pending;
};

// A content chunk of a stream.
QByteArray MakeDelta(const QByteArray& JsonText);
inline const QByteArray StopChunk = "data: {\"choices\":[{\"index\":0,\"delta\":{},\"finish_reason\":\"stop\"}]}\n\n";
inline const QByteArray EndMark = "data: [DONE]\n\n";

// A complete answer of one piece.
FScriptedServer::FHandler Answer(const QByteArray& JsonText);
// The beginning of one.
FScriptedServer::FHandler SendAndStayOpen(const QByteArray& Events);
FScriptedServer::FHandler ReplyJson(const QByteArray& Status, const QByteArray& Json = "{}", const QByteArray& Headers = {});
