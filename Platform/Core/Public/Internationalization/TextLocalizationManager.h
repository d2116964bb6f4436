// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/Map.h"
#include "Containers/UnrealString.h"

// The translations that localised texts are looked up in.
class FTextLocalizationManager
{
public:
	static FTextLocalizationManager& Get();

	// Source is the text that was translated. Where the program's source differs from it, the translation is out of date and not used.
	void AddTranslation(
		const FString& Culture, const FString& Namespace, const FString& Key, const FString& Source, const FString& Translation);

	// In the current culture, else in its parents ("de-AT", "de"); null where there is none.
	const FString* FindTranslation(const FString& Namespace, const FString& Key, const FString& Source) const;

	// Forgets all translations.
	void Reset();

	// Grows with each change of the culture or of the translations.
	uint32 GetTextRevision() const { return TextRevision; }
	void DirtyTextRevision() { ++TextRevision; }

private:
	struct FEntry
	{
		FString Source;
		FString Translation;
	};

	static FString MakeKey(const FString& Culture, const FString& Namespace, const FString& Key);

	TMap<FString, FEntry> Entries;
	uint32 TextRevision = 1;
};
