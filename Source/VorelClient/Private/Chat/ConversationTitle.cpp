// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QDateTime>
#include <QLocale>

#include "Chat/ConversationTitle.h"

#include "Http/QtText.h"
#include <memory>
#include <unicode/brkiter.h>
#include <unicode/uchar.h>
#include <unicode/utf16.h>

#define LOCTEXT_NAMESPACE "VorelClient"

namespace
{
// Where the character after the given number of them begins, at most the text's length.
int32 FindEndOfCharacters(const FString& Text, int32 Count)
{
	UErrorCode Status = U_ZERO_ERROR;
	const std::unique_ptr<icu::BreakIterator> Characters(icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), Status));
	check(U_SUCCESS(Status));
	const icu::UnicodeString Units(false, *Text, Text.Len());
	Characters->setText(Units);
	const int32 End = Count > 0 ? Characters->next(FMath::Min(Count, Text.Len())) : 0;
	return End == icu::BreakIterator::DONE ? Text.Len() : End;
}
} // namespace

FString MakeConversationTitle(const FString& FirstMessage)
{
	FString Title;
	for (int32 Index = 0; Index < FirstMessage.Len();)
	{
		UChar32 Character;
		const int32 Start = Index;
		U16_NEXT(*FirstMessage, Index, FirstMessage.Len(), Character);
		if (!u_isUWhiteSpace(Character) && !u_isISOControl(Character))
		{
			Title += FirstMessage.Mid(Start, Index - Start);
		}
		else if (!Title.IsEmpty() && !Title.EndsWith(TEXT(" ")))
		{
			Title += TEXT(" ");
		}
	}
	return Title.TrimEnd();
}

FString GetShownTitle(const FString& Title)
{
	return Title.IsEmpty() ? LOCTEXT("Untitled", "Untitled").ToString() : Title;
}

FString ShortenTitle(const FString& Title, int32 MaxLength)
{
	if (MaxLength < 1 || FindEndOfCharacters(Title, MaxLength) == Title.Len())
	{
		return MaxLength < 1 ? FString() : Title;
	}
	return Title.Left(FindEndOfCharacters(Title, MaxLength - 1)).TrimEnd() + TEXT("…");
}

FString FormatTimeOfUse(int64 Time, int64 Now)
{
	const QDateTime Used = QDateTime::fromMSecsSinceEpoch(Time);
	const bool bToday = Used.date() == QDateTime::fromMSecsSinceEpoch(Now).date();
	return ToFString(QLocale::c().toString(Used, bToday ? QStringLiteral("HH:mm") : QStringLiteral("d MMM")));
}

int64 GetCurrentTime()
{
	return QDateTime::currentMSecsSinceEpoch();
}

#undef LOCTEXT_NAMESPACE
