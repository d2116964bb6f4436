// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "ScriptedServer.h"

#include <QHostAddress>
#include <sys/socket.h>

void FExchange::SendReply(const QByteArray& Status, const QByteArray& Type, const QByteArray& Content, const QByteArray& ExtraHeaders) const
{
	Send("HTTP/1.1 " + Status + "\r\nContent-Type: " + Type + "\r\nContent-Length: " + QByteArray::number(Content.size()) + "\r\n" +
		 ExtraHeaders + "\r\n" + Content);
}

void FExchange::Reset() const
{
	const linger Hard{1, 0};
	setsockopt(static_cast<int>(Socket->socketDescriptor()), SOL_SOCKET, SO_LINGER, &Hard, sizeof(Hard));
	Socket->abort();
}

FScriptedServer::FScriptedServer()
{
	Server.listen(QHostAddress::LocalHost);
	QObject::connect(&Server, &QTcpServer::newConnection, &Server,
		[this]
		{
			while (QTcpSocket* const Socket = Server.nextPendingConnection())
			{
				QObject::connect(Socket, &QTcpSocket::readyRead, &Server, [this, Socket] { HandleBytes(Socket); });
			}
		});
}

void FScriptedServer::StopListening()
{
	Server.close();
	for (QTcpSocket* const Socket : Server.findChildren<QTcpSocket*>())
	{
		Socket->abort();
	}
}

void FScriptedServer::HandleBytes(QTcpSocket* Socket)
{
	QByteArray& Bytes = Pending[Socket];
	Bytes += Socket->readAll();
	FExchange Exchange;
	Exchange.Socket = Socket;
	const qsizetype EndOfHead = Bytes.indexOf("\r\n\r\n");
	if (EndOfHead < 0)
	{
		return;
	}
	QList<QByteArray> Lines = Bytes.left(EndOfHead).split('\n');
	const QList<QByteArray> RequestLine = Lines.takeFirst().trimmed().split(' ');
	Exchange.Method = RequestLine.value(0);
	Exchange.Path = RequestLine.value(1);
	for (const QByteArray& Line : Lines)
	{
		Exchange.Headers[Line.left(Line.indexOf(':')).toLower()] = Line.mid(Line.indexOf(':') + 1).trimmed();
	}
	Exchange.Body = Bytes.mid(EndOfHead + 4);
	if (Exchange.Body.size() < Exchange.Headers.value("content-length").toLongLong())
	{
		return;
	}
	Bytes.clear();
	Exchanges.append(Exchange);
	if (!Handlers.isEmpty())
	{
		Handlers.takeFirst()(Exchange);
	}
}

QByteArray MakeDelta(const QByteArray& JsonText)
{
	return "data: {\"choices\":[{\"index\":0,\"delta\":{\"content\":\"" + JsonText + "\"}}]}\n\n";
}

FScriptedServer::FHandler Answer(const QByteArray& JsonText)
{
	return [JsonText](const FExchange& Exchange)
	{
		Exchange.SendStreamHead();
		Exchange.Send(MakeDelta(JsonText) + StopChunk + EndMark);
		Exchange.Close();
	};
}

FScriptedServer::FHandler ReplyJson(const QByteArray& Status, const QByteArray& Json, const QByteArray& Headers)
{
	return [=](const FExchange& Exchange)
	{
		Exchange.SendReply(Status, "application/json", Json, Headers);
	};
}

FScriptedServer::FHandler SendAndStayOpen(const QByteArray& Events)
{
	return [Events](const FExchange& Exchange)
	{
		Exchange.SendStreamHead();
		Exchange.Send(Events);
	};
}
