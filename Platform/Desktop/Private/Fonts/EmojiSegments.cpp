// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Fonts/EmojiSegments.h"

#include <algorithm>
#include <unicode/uchar.h>
#include <unicode/utf16.h>

static constexpr char32_t TextSelector = 0xFE0E;
static constexpr char32_t EmojiSelector = 0xFE0F;
static constexpr char32_t ZeroWidthJoiner = 0x200D;
static constexpr char32_t KeycapEnclosure = 0x20E3;

static char32_t CharacterAt(QStringView Text, qsizetype Index)
{
	char32_t Character = 0;
	if (Index < Text.size())
	{
		U16_GET(Text.utf16(), 0, Index, Text.size(), Character);
	}
	return Character;
}

static bool StartsEmoji(char32_t Character, char32_t Next)
{
	if (!u_hasBinaryProperty(Character, UCHAR_EMOJI))
	{
		return false;
	}
	return Next == EmojiSelector || u_hasBinaryProperty(Next, UCHAR_EMOJI_MODIFIER) ||
		   (Next != TextSelector && u_hasBinaryProperty(Character, UCHAR_EMOJI_PRESENTATION));
}

static bool ContinuesEmoji(char32_t Character)
{
	const bool bTag = Character >= 0xE0020 && Character <= 0xE007F;
	return Character == EmojiSelector || Character == KeycapEnclosure || bTag || u_hasBinaryProperty(Character, UCHAR_EMOJI_MODIFIER);
}

// The end of the emoji sequence that starts at Index, or Index if there is none.
static qsizetype EndOfEmoji(QStringView Text, qsizetype Index)
{
	const char32_t First = CharacterAt(Text, Index);
	qsizetype End = Index + U16_LENGTH(First);
	if (!StartsEmoji(First, CharacterAt(Text, End)))
	{
		return Index;
	}
	while (End < Text.size())
	{
		const char32_t Character = CharacterAt(Text, End);
		if (Character == ZeroWidthJoiner && u_hasBinaryProperty(CharacterAt(Text, End + 1), UCHAR_EMOJI))
		{
			End += 1 + U16_LENGTH(CharacterAt(Text, End + 1));
		}
		else if (ContinuesEmoji(Character))
		{
			End += U16_LENGTH(Character);
		}
		else
		{
			break;
		}
	}
	return End;
}

static bool CanHoldEmoji(QStringView Text)
{
	// Below the arrows, a character is an emoji only by a selector or keycap that follows it, and these lie above.
	return std::any_of(Text.begin(), Text.end(), [](QChar Unit) { return Unit.unicode() >= 0x203C; });
}

QList<FPresentationSegment> SplitByPresentation(QStringView Text)
{
	if (!CanHoldEmoji(Text))
	{
		return Text.isEmpty() ? QList<FPresentationSegment>() : QList<FPresentationSegment>{{0, Text.size(), false}};
	}
	QList<FPresentationSegment> Segments;
	for (qsizetype Index = 0; Index < Text.size();)
	{
		const qsizetype EmojiEnd = EndOfEmoji(Text, Index);
		const bool bEmoji = EmojiEnd > Index;
		const qsizetype End = bEmoji ? EmojiEnd : Index + U16_LENGTH(CharacterAt(Text, Index));
		if (Segments.isEmpty() || Segments.last().bEmoji != bEmoji)
		{
			Segments.append({Index, 0, bEmoji});
		}
		Segments.last().Length = End - Segments.last().Start;
		Index = End;
	}
	return Segments;
}
