// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

#include <QByteArray>
#include <QMap>
#include <QUrl>

// A form of a web page, filled in and ready to be sent. Only attributes in double quotes are read.
struct FPageForm
{
	QUrl Action;
	QByteArray Body;

	// The form with the button of this caption, or with any button where it is empty. Unset where the page has none.
	static TOptional<FPageForm> Find(const QUrl& Page, const QString& Html, const QMap<QString, QString>& Entries, const QString& Button);
};

// What a page says to its reader first of all: what is wrong, else its heading.
FString ReadPageMessage(const QString& Html);
