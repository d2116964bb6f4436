// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Internationalization/TextLocalizationManager.h"
#include "Internationalization/Internationalization.h"

FTextLocalizationManager& FTextLocalizationManager::Get()
{
	static FTextLocalizationManager Manager;
	return Manager;
}

void FTextLocalizationManager::AddTranslation(const FString& Culture, const FTextId& Id, const FString& Source, const FString& Translation)
{
	Cultures.FindOrAdd(Culture).Add(Id, {Source, Translation});
	DirtyTextRevision();
}

static FString ParentOf(const FString& Culture)
{
	int32 LastDash;
	return Culture.FindLastChar(TEXT('-'), LastDash) ? Culture.Left(LastDash) : FString();
}

const FString* FTextLocalizationManager::FindTranslation(const FTextId& Id, const FString& Source) const
{
	for (FString Culture = FInternationalization::Get().GetCurrentCultureName(); !Culture.IsEmpty(); Culture = ParentOf(Culture))
	{
		const TMap<FTextId, FEntry>* Table = Cultures.Find(Culture);
		const FEntry* Entry = Table ? Table->Find(Id) : nullptr;
		if (Entry && Entry->Source.Equals(Source))
		{
			return &Entry->Translation;
		}
	}
	return nullptr;
}

void FTextLocalizationManager::Reset()
{
	Cultures.Empty();
	DirtyTextRevision();
}
