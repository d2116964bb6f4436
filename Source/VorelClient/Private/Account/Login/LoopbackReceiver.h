// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QList>
#include <QPointer>
#include <QTcpServer>

#include "Account/Login/AuthorizationRequest.h"

class QTcpSocket;

// Waits on this machine for the browser that comes back from a login. Listens as long as it lives, or until a redirect was accepted.
class FLoopbackReceiver final : public QObject
{
public:
	// More at once than a browser opens; the oldest has to go when there are more.
	static constexpr qsizetype MaxConnections = 32;

	// Seconds that a connection may stay open.
	explicit FLoopbackReceiver(double InConnectionLimit);

	// Set before the first redirect can come. Whatever it returns is shown; a code or a refusal ends the listening.
	TFunction<ERedirect(const FFormFields& Redirect)> OnRedirect;
	// After the one that ended it, once. May destroy the receiver.
	TFunction<void()> OnAccepted;

	// On a free port. False where this machine has none.
	bool Listen();
	// Of the port.
	std::string GetRedirectUri() const;

private:
	void HandleConnection();
	void HandleBytes(QTcpSocket* Socket);
	// Null: more is to come.
	QByteArray MakeReply(const QByteArray& Received, bool& bOutAccepted) const;
	void SendLastly(QTcpSocket* Socket, const QByteArray& Reply);
	std::string GetHost() const;

	const int ConnectionLimitMilliseconds;
	QTcpServer Server;
	// Oldest first.
	QList<QPointer<QTcpSocket>> Connections;
};
