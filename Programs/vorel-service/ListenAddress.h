// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

struct FListenAddress
{
	// A name or an address, without the brackets of IPv6.
	FString Host = TEXT("127.0.0.1");
	// 0: any free one.
	int32 Port = 8720;

	// "127.0.0.1:8720" or "[::1]:8720". Unset for anything else.
	static TOptional<FListenAddress> Read(const FString& Text);

	// As it is read.
	FString ToString() const;
};
