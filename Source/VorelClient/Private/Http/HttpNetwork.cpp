// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>

#include "Http/HttpNetwork.h"

namespace
{
bool IsLoopback(const QString& Host)
{
	return Host == QLatin1String("localhost") || QHostAddress(Host).isLoopback();
}

class FProxyForOthers final : public QNetworkProxyFactory
{
public:
	QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& Query) override
	{
		return IsLoopback(Query.peerHostName()) ? QList<QNetworkProxy>{QNetworkProxy(QNetworkProxy::NoProxy)} : systemProxyForQuery(Query);
	}
};
} // namespace

QNetworkAccessManager* MakeNetwork(QObject* Parent)
{
	auto* const Network = new QNetworkAccessManager(Parent);
	Network->setProxyFactory(new FProxyForOthers);
	return Network;
}
