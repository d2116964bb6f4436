// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TextData.h"
#include "Containers/StringConv.h"
#include "Internationalization/Internationalization.h"

#include <unicode/numfmt.h>
#include <memory>

const FString& FCultureTextData::GetDisplayString()
{
	const uint32 CurrentRevision = FTextLocalizationManager::Get().GetTextRevision();
	if (TextRevision != CurrentRevision)
	{
		DisplayString = Build();
		TextRevision = CurrentRevision;
	}
	return DisplayString;
}

FString FLocalizedTextData::Build() const
{
	const FString* Translation = FTextLocalizationManager::Get().FindTranslation(Id, Source);
	return Translation ? *Translation : Source;
}

template <typename NumberType>
FString TNumberTextData<NumberType>::Build() const
{
	const icu::Locale Locale(TCHAR_TO_UTF8(FInternationalization::Get().GetCurrentCultureName()));
	UErrorCode Error = U_ZERO_ERROR;
	const std::unique_ptr<icu::NumberFormat> Format(icu::NumberFormat::createInstance(Locale, Error));
	check(U_SUCCESS(Error));
	icu::UnicodeString Result;
	Format->format(Number, Result);
	return FString(Result.length(), Result.getBuffer());
}

template class TNumberTextData<int64_t>;
template class TNumberTextData<double>;

// Appends the pattern's text up to the next place, and moves Position behind it. The place's name, or nothing at the end.
static TOptional<FStringView> AppendUpToPlace(FStringView Pattern, int32& Position, FString& Out)
{
	while (Position < Pattern.Len())
	{
		const TCHAR Unit = Pattern[Position++];
		int32 Length = INDEX_NONE;
		if (Unit == TEXT('`') && Position < Pattern.Len() && FStringView(TEXT("`{}")).Contains(Pattern.Mid(Position, 1)))
		{
			Out.AppendChar(Pattern[Position++]);
		}
		else if (Unit == TEXT('{') && Pattern.RightChop(Position).FindChar(TEXT('}'), Length))
		{
			const FStringView Place = Pattern.Mid(Position, Length);
			Position += Length + 1;
			return Place;
		}
		else
		{
			Out.AppendChar(Unit);
		}
	}
	return {};
}

FString FFormattedTextData::Build() const
{
	const FStringView Source = Pattern.ToString();
	FString Result;
	int32 Position = 0;
	while (const TOptional<FStringView> Place = AppendUpToPlace(Source, Position, Result))
	{
		if (const FFormatArgumentValue* Argument = Arguments.Find(FString(*Place)))
		{
			Result += Argument->ToText().ToString();
		}
		else
		{
			Result.AppendChar(TEXT('{')).Append(*Place).AppendChar(TEXT('}'));
		}
	}
	return Result;
}
