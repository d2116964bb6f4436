// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Account/NextTurn.h"
#include "Account/OwnerKey.h"
#include "Account/Secrets.h"

FOwnerKey::FOwnerKey()
	: Key(Secrets::MakeRandom().c_str())
{
}

TSharedPtr<void> FOwnerKey::RequestToken(const FString& RefusedToken, TFunction<void(const FString& Token)> OnToken)
{
	const FString Token = RefusedToken.IsEmpty() ? Key : FString();
	const TSharedRef<FNextTurn> Soon = MakeShared<FNextTurn>([Token, OnToken] { OnToken(Token); });
	Soon->Ask();
	return Soon;
}
