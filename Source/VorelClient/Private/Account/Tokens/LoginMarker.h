// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

enum class ETokenPlace : uint8
{
	// In memory, if anywhere.
	None,
	SecretStore,
	File,
	// Nobody is signed in, but the tokens there are not cleared yet.
	LeftSecretStore,
	LeftFile
};

// Notes in a file, without secrets, who is signed in and where the tokens lie, so that a program knows it as soon as it starts.
class FLoginMarker final
{
public:
	// DataFolder empty: nothing is noted.
	FLoginMarker(const FString& DataFolder, const FString& InAccount);

	ETokenPlace Read() const;
	// Where it can't be noted, nothing is: better nobody is signed in than somebody who signed out.
	bool Write(ETokenPlace Place) const;

private:
	const FString File;
	const FString Account;
};
