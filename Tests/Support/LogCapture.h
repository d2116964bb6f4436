// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Misc/OutputDevice.h"

// Keeps every message that is logged during its life, on any thread.
class FLogCapture final : public FOutputDevice
{
public:
	struct FMessage
	{
		FName Category;
		ELogVerbosity::Type Verbosity;
		FString Text;
	};

	FLogCapture();
	~FLogCapture() override;

	// Whether exactly this text, letter case counting, was logged at this level in this category; and how often.
	bool Has(const FName& Category, ELogVerbosity::Type Verbosity, const FString& Text) const
	{
		return Count(Category, Verbosity, Text) > 0;
	}
	int32 Count(const FName& Category, ELogVerbosity::Type Verbosity, const FString& Text) const;
	int32 CountAtLevel(const FName& Category, ELogVerbosity::Type Verbosity) const;

	const TArray<FMessage>& GetMessages() const { return Messages; }
	// All messages as lines, for the message of a failed expectation.
	FString Dump() const;
	void Clear() { Messages.Empty(); }

	void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override;

private:
	TArray<FMessage> Messages;
};
