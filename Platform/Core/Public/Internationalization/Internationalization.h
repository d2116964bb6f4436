// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/UnrealString.h"
#include "Delegates/Delegate.h"

// The culture that texts are shown in.
class FInternationalization
{
public:
	static FInternationalization& Get();

	// A name like "en", "de-AT". False, and nothing changed, for a name that no culture has.
	bool SetCurrentCulture(const FString& InCultureName);
	const FString& GetCurrentCultureName() const { return CultureName; }

	// Fires after each change.
	FSimpleMulticastDelegate& OnCultureChanged() { return CultureChangedEvent; }

private:
	FInternationalization() = default;

	FString CultureName = TEXT("en");
	FSimpleMulticastDelegate CultureChangedEvent;
};
