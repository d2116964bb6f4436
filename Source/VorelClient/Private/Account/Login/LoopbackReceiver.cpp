// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QCoreApplication>
#include <QHostAddress>
#include <QNetworkProxy>
#include <QTcpSocket>
#include <QTimer>

#include "Account/Login/LoopbackPage.h"
#include "Account/Login/LoopbackReceiver.h"
#include "Account/Login/RequestHead.h"

FLoopbackReceiver::FLoopbackReceiver(double InConnectionLimit)
	: ConnectionLimitMilliseconds(FMath::CeilToInt(InConnectionLimit * 1000.0))
{
	Server.setProxy(QNetworkProxy::NoProxy);
	connect(&Server, &QTcpServer::newConnection, this, [this] { HandleConnection(); });
}

bool FLoopbackReceiver::Listen()
{
	return Server.listen(QHostAddress::LocalHost);
}

std::string FLoopbackReceiver::GetHost() const
{
	return "127.0.0.1:" + std::to_string(Server.serverPort());
}

std::string FLoopbackReceiver::GetRedirectUri() const
{
	return "http://" + GetHost() + "/callback";
}

void FLoopbackReceiver::HandleConnection()
{
	while (QTcpSocket* const Socket = Server.nextPendingConnection())
	{
		Socket->setReadBufferSize(FRequestHead::MaxBytes);
		connect(Socket, &QTcpSocket::readyRead, this, [this, Socket] { HandleBytes(Socket); });
		connect(Socket, &QTcpSocket::disconnected, Socket, &QObject::deleteLater);
		QTimer::singleShot(ConnectionLimitMilliseconds, Socket, &QTcpSocket::abort);
		Connections.removeAll(nullptr);
		Connections.append(Socket);
		if (Connections.size() > MaxConnections)
		{
			Connections.takeFirst()->abort();
		}
	}
}

void FLoopbackReceiver::HandleBytes(QTcpSocket* Socket)
{
	const QByteArray Received = Socket->peek(FRequestHead::MaxBytes);
	bool bAccepted = false;
	const QByteArray Reply = MakeReply(Received, bAccepted);
	if (Reply.isNull())
	{
		return;
	}
	Socket->readAll();
	SendLastly(Socket, Reply);
	if (bAccepted)
	{
		Server.close();
		// Destroys this receiver, perhaps.
		const TFunction<void()> Handler = OnAccepted;
		Handler();
	}
}

QByteArray FLoopbackReceiver::MakeReply(const QByteArray& Received, bool& bOutAccepted) const
{
	const qsizetype End = Received.indexOf("\r\n\r\n");
	if (End < 0)
	{
		return Received.size() < static_cast<qsizetype>(FRequestHead::MaxBytes) ? QByteArray() : LoopbackPage::MakeBadRequest();
	}
	const TOptional<FRequestHead> Head = FRequestHead::Read(std::string_view(Received.constData(), static_cast<std::size_t>(End) + 4));
	// Another host in the request: a page elsewhere whose name leads to this machine.
	if (!Head || Head->Host != GetHost())
	{
		return LoopbackPage::MakeBadRequest();
	}
	if (Head->Method != "GET" || Head->Path != "/callback")
	{
		return LoopbackPage::MakeNotFound();
	}
	const ERedirect Redirect = OnRedirect(ReadForm(Head->Query));
	bOutAccepted = Redirect == ERedirect::Code || Redirect == ERedirect::Refusal;
	return LoopbackPage::Make(Redirect);
}

void FLoopbackReceiver::SendLastly(QTcpSocket* Socket, const QByteArray& Reply)
{
	// The page arrives also when nobody listens any more.
	Socket->disconnect(this);
	Connections.removeAll(Socket);
	Socket->setParent(QCoreApplication::instance());
	Socket->write(Reply);
	Socket->flush();
	Socket->disconnectFromHost();
}
