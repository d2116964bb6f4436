// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Play/BrowserHand.h"

#include "Play/PageForm.h"
#include "QtConversion.h"

#include <QNetworkReply>

static constexpr int PatienceInMilliseconds = 30'000;
static constexpr int32 MostPages = 10;

static QNetworkRequest MakeRequest(const QUrl& Url)
{
	QNetworkRequest Request(Url);
	Request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
	Request.setTransferTimeout(PatienceInMilliseconds);
	return Request;
}

FBrowserHand::FBrowserHand(const FString& Address, const QMap<QString, QString>& InEntries, const FString& InButton)
	: Entries(InEntries)
	, Button(ToQString(InButton))
{
	Take(Network.get(MakeRequest(QUrl(ToQString(Address)))));
}

void FBrowserHand::Take(QNetworkReply* Reply)
{
	connect(Reply, &QNetworkReply::finished, this,
		[this, Reply]
		{
			Reply->deleteLater();
			HandleReply(*Reply);
		});
}

void FBrowserHand::HandleReply(QNetworkReply& Reply)
{
	const int Status = Reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
	const QString Html = QString::fromUtf8(Reply.readAll());
	const QUrl Next = Reply.url().resolved(QUrl(QString::fromUtf8(Reply.rawHeader("Location"))));
	if (Status >= 300 && Status < 400 && Next != Reply.url() && ++NumPages < MostPages)
	{
		Take(Network.get(MakeRequest(Next)));
	}
	else if (Status < 200 || Status >= 300)
	{
		const FString Reason = Status == 0 ? ToFString(Reply.errorString()) : ReadPageMessage(Html);
		Outcome = FString::Printf(TEXT("the browser gets status %d: %s"), Status, *Reason);
	}
	else if (bPressed)
	{
		Outcome = FString();
	}
	else
	{
		FillIn(Reply.url(), Html);
	}
}

void FBrowserHand::FillIn(const QUrl& Page, const QString& Html)
{
	const TOptional<FPageForm> Form = FPageForm::Find(Page, Html, Entries, Button);
	if (!Form)
	{
		Outcome = FString::Printf(TEXT("the page \"%s\" has no form with the button \"%s\""), *ReadPageMessage(Html), *ToFString(Button));
		return;
	}
	bPressed = true;
	QNetworkRequest Request = MakeRequest(Form->Action);
	Request.setHeader(QNetworkRequest::ContentTypeHeader, QByteArrayLiteral("application/x-www-form-urlencoded"));
	const QUrl Origin = Page.adjusted(QUrl::RemovePath | QUrl::RemoveQuery | QUrl::RemoveFragment);
	Request.setRawHeader("Origin", Origin.toEncoded(QUrl::StripTrailingSlash));
	Take(Network.post(Request, Form->Body));
}
