// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QRandomGenerator>

#include "Account/NextTurn.h"
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
	const FString Token = RefusedToken.IsEmpty() ? Key : FString();
	const TSharedRef<FNextTurn> Soon = MakeShared<FNextTurn>([Token, OnToken] { OnToken(Token); });
	Soon->Ask();
	return Soon;
}
