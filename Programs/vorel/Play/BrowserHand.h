// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

#include <QMap>
#include <QNetworkAccessManager>
#include <QUrl>

// What a person does with one page in the browser: opens it, fills in a form, and presses its button. Keeps cookies, follows redirects and
// tells its origin as browsers do, and runs no scripts.
class FBrowserHand final : public QObject
{
public:
	// Entries go to the fields of these names, where the page has them. Button is a caption; empty: the page's first button.
	FBrowserHand(const FString& Address, const QMap<QString, QString>& InEntries, const FString& InButton);

	// Unset while the pages still come; then what went wrong, or nothing.
	const TOptional<FString>& GetOutcome() const { return Outcome; }

private:
	void Take(QNetworkReply* Reply);
	void HandleReply(QNetworkReply& Reply);
	void FillIn(const QUrl& Page, const QString& Html);

	QNetworkAccessManager Network;
	QMap<QString, QString> Entries;
	QString Button;
	bool bPressed = false;
	int32 NumPages = 0;
	TOptional<FString> Outcome;
};
