// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Internationalization/Internationalization.h"
#include "Containers/StringConv.h"
#include "Internationalization/TextLocalizationManager.h"

#include <unicode/locid.h>
#include <algorithm>
#include <cstring>

FInternationalization& FInternationalization::Get()
{
	static FInternationalization Internationalization;
	return Internationalization;
}

// ICU takes any well-formed tag; a culture exists where ICU has data for its language.
static bool IsKnownLanguage(const icu::Locale& Locale)
{
	int32 Count = 0;
	const icu::Locale* Available = icu::Locale::getAvailableLocales(Count);
	return std::any_of(Available, Available + Count,
		[&Locale](const icu::Locale& Candidate) { return std::strcmp(Candidate.getLanguage(), Locale.getLanguage()) == 0; });
}

bool FInternationalization::SetCurrentCulture(const FString& InCultureName)
{
	UErrorCode Error = U_ZERO_ERROR;
	const icu::Locale Locale = icu::Locale::forLanguageTag(TCHAR_TO_UTF8(InCultureName), Error);
	if (U_FAILURE(Error) || Locale.isBogus() || !IsKnownLanguage(Locale))
	{
		return false;
	}
	CultureName = InCultureName;
	FTextLocalizationManager::Get().DirtyTextRevision();
	CultureChangedEvent.Broadcast();
	return true;
}
