// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Account/AccessTokenSource.h"

// The token by which the program itself uses the service that it embeds. It holds for this run and can't be renewed.
class FOwnerKey final : public IAccessTokenSource
{
public:
	FOwnerKey();

	const FString& Get() const { return Key; }

	TSharedPtr<void> RequestToken(const FString& RefusedToken, TFunction<void(const FString& Token)> OnToken) override;

private:
	const FString Key;
};
