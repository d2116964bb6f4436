// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QRandomGenerator>
#include <QTimer>

#include "Http/QtText.h"

#include "Account/OwnerKey.h"

FOwnerKey::FOwnerKey()
{
	quint32 Numbers[8];
	QRandomGenerator::system()->fillRange(Numbers);
	Key = ToFString(QString::fromLatin1(QByteArray(reinterpret_cast<const char*>(Numbers), sizeof(Numbers)).toHex()));
}

TSharedPtr<void> FOwnerKey::RequestToken(const FString& RefusedToken, TFunction<void(const FString& Token)> OnToken)
{
	const TSharedRef<QTimer> Soon = MakeShared<QTimer>();
	Soon->setSingleShot(true);
	const FString Token = RefusedToken.IsEmpty() ? Key : FString();
	QObject::connect(&*Soon, &QTimer::timeout, &*Soon, [Token, Given = ::MoveTemp(OnToken)] { Given(Token); });
	Soon->start(0);
	return Soon;
}
