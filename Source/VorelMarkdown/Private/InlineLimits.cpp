// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "InlineLimits.h"

namespace
{
constexpr int32 MaxAddresses = 256;
constexpr int32 MaxTildeRuns = 512;
constexpr int32 MaxLineSteps = 5'000'000;

// A marker that stands further in may be a line of a paragraph.
constexpr int32 MaxMarkerIndent = 3;

bool IsBlankOrQuote(TCHAR Character)
{
	return Character == ' ' || Character == '\t' || Character == '>';
}

bool IsBullet(TCHAR Character)
{
	return Character == '-' || Character == '*' || Character == '+';
}

bool IsLineEnd(TCHAR Character)
{
	return Character == '\n' || Character == '\r';
}
} // namespace

void FInlineLimits::BeginLine(int32 Position)
{
	ContentStart = Position;
	while (ContentStart < Text.Len() && IsBlankOrQuote(Text[ContentStart]))
	{
		++ContentStart;
	}
	const bool bEmpty = ContentStart == Text.Len() || IsLineEnd(Text[ContentStart]);
	const bool bItem =
		!bEmpty && ContentStart - Position <= MaxMarkerIndent && IsBullet(Text[ContentStart]) && IsAt(ContentStart + 1, TEXT(" "));
	if (bEmpty || bItem)
	{
		Lines = LineSteps = Addresses = TildeRuns = 0;
	}
	++Lines;
}

bool FInlineLimits::MustBeText(int32 Position)
{
	switch (Text[Position])
	{
	case '~':
		return IsTildeText(Position);
	case '[':
		LineSteps = FMath::Min(LineSteps, MaxLineSteps) + Lines;
		return LineSteps > MaxLineSteps;
	case ':':
		return IsAt(Position + 1, TEXT("//")) && ++Addresses > MaxAddresses;
	case '.':
		return Position >= 3 && IsAt(Position - 3, TEXT("www")) && ++Addresses > MaxAddresses;
	default:
		return false;
	}
}

bool FInlineLimits::IsTildeText(int32 Position)
{
	const TCHAR Before = Position > 0 ? Text[Position - 1] : TCHAR(0);
	if (Before == '~')
	{
		return bInTextTildes;
	}
	// At the end of the text it may still become a pair or a fence, and behind a backslash it is text anyway.
	const bool bLast = Position + 1 == Text.Len();
	const bool bSingle = !bLast && Text[Position + 1] != '~' && Before != '\\';
	bInTextTildes = bSingle || (++TildeRuns > MaxTildeRuns && Position != ContentStart);
	return bInTextTildes;
}
