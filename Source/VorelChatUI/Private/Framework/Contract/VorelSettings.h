// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

// Defined by VorelCore.
class UVorelSettings : public UObject
{
public:
	static TObjectPtr<UVorelSettings> Get();

	// Base address of the web application, to which fixed paths are appended.
	virtual FString GetAppUrl() const = 0;
};
