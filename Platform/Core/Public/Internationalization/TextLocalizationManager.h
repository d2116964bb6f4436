// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/Map.h"
#include "Containers/UnrealString.h"

// Namespace and key, letter case counting.
struct FTextId
{
	FString Namespace;
	FString Key;

	friend bool operator==(const FTextId& Lhs, const FTextId& Rhs)
	{
		return Lhs.Namespace.Equals(Rhs.Namespace) && Lhs.Key.Equals(Rhs.Key);
	}
	friend uint32 GetTypeHash(const FTextId& Id) { return HashCombine(GetTypeHash(Id.Namespace), GetTypeHash(Id.Key)); }
};

// The translations that localised texts are looked up in.
class FTextLocalizationManager
{
public:
	static FTextLocalizationManager& Get();

	// Source is the text that was translated. Where the program's source differs from it, the translation is out of date and not used.
	void AddTranslation(const FString& Culture, const FTextId& Id, const FString& Source, const FString& Translation);

	// In the current culture, else in its parents ("de-AT", "de"); null where there is none.
	const FString* FindTranslation(const FTextId& Id, const FString& Source) const;

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

	// By name of the culture.
	TMap<FString, TMap<FTextId, FEntry>> Cultures;
	uint32 TextRevision = 1;
};
