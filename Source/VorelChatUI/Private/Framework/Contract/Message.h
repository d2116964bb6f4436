// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

// A reader takes any other value as User.
enum class EChatRole : uint8
{
	User = 0,
	Assistant = 1,
	System = 2
};

class UMessageContent : public UObject
{
public:
	FString Text;
};

class UMessage : public UObject
{
public:
	EChatRole Role = EChatRole::User;

	// Only the first element is shown.
	TArray<TObjectPtr<UMessageContent>> Contents;

	void AddReferencedObjects(FReferenceCollector& Collector) override { Collector.AddReferencedObjects(Contents); }
};
