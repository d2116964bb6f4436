// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TextBoundaries.h"

#include "Containers/StringView.h"

#include <unicode/ubidi.h>
#include <unicode/ubrk.h>
#include <unicode/uchar.h>

namespace
{
/** Below this no character runs from right to left, and none reorders others. */
constexpr TCHAR FirstRightToLeft = 0x0590;
/** Below this every character but CR LF is a grapheme of its own. */
constexpr TCHAR FirstCombining = 0x0300;

/** An ICU iterator that is made once and set to text after text. */
class FBreakIterator
{
public:
	explicit FBreakIterator(UBreakIteratorType Type)
	{
		UErrorCode Status = U_ZERO_ERROR;
		Iterator = ubrk_open(Type, "", nullptr, 0, &Status);
		check(U_SUCCESS(Status));
	}

	~FBreakIterator() { ubrk_close(Iterator); }

	FBreakIterator(const FBreakIterator&) = delete;
	FBreakIterator& operator=(const FBreakIterator&) = delete;

	UBreakIterator* Set(FStringView Text)
	{
		UErrorCode Status = U_ZERO_ERROR;
		ubrk_setText(Iterator, Text.GetData(), Text.Len(), &Status);
		check(U_SUCCESS(Status));
		return Iterator;
	}

private:
	UBreakIterator* Iterator = nullptr;
};

UBreakIterator* LineIterator(FStringView Text)
{
	static thread_local FBreakIterator Iterator(UBRK_LINE);
	return Iterator.Set(Text);
}

UBreakIterator* WordIterator(FStringView Text)
{
	static thread_local FBreakIterator Iterator(UBRK_WORD);
	return Iterator.Set(Text);
}

UBreakIterator* GraphemeIterator(FStringView Text)
{
	static thread_local FBreakIterator Iterator(UBRK_CHARACTER);
	return Iterator.Set(Text);
}

class FBidi
{
public:
	FBidi()
		: Bidi(ubidi_open())
	{
		check(Bidi);
	}
	~FBidi() { ubidi_close(Bidi); }

	FBidi(const FBidi&) = delete;
	FBidi& operator=(const FBidi&) = delete;

	UBiDi* Set(FStringView Text)
	{
		UErrorCode Status = U_ZERO_ERROR;
		ubidi_setPara(Bidi, Text.GetData(), Text.Len(), UBIDI_DEFAULT_LTR, nullptr, &Status);
		check(U_SUCCESS(Status));
		return Bidi;
	}

private:
	UBiDi* Bidi;
};

bool IsPlainLeftToRight(FStringView Text)
{
	for (int32 Index = 0; Index < Text.Len(); ++Index)
	{
		if (Text[Index] >= FirstRightToLeft)
		{
			return false;
		}
	}
	return true;
}

/** Whether the units around `Offset` settle by themselves that a grapheme ends there. */
bool IsSimpleBoundary(FStringView Text, int32 Offset)
{
	const TCHAR Before = Text[Offset - 1];
	const TCHAR After = Text[Offset];
	return Before < FirstCombining && After < FirstCombining && !(Before == TEXT('\r') && After == TEXT('\n'));
}

bool IsBlank(FStringView Text, int32 Offset)
{
	return u_isUWhiteSpace(Text[Offset]);
}
} // namespace

void TextBoundaries::FindLineBreaks(FStringView Text, TArray<int32>& OutBreaks)
{
	OutBreaks.Reset();
	if (Text.IsEmpty())
	{
		return;
	}
	UBreakIterator* Iterator = LineIterator(Text);
	ubrk_first(Iterator);
	for (int32 Break = ubrk_next(Iterator); Break != UBRK_DONE; Break = ubrk_next(Iterator))
	{
		OutBreaks.Add(Break);
	}
}

uint8 TextBoundaries::FindLevels(FStringView Text, TArray<FLevelRun>& OutRuns)
{
	OutRuns.Reset();
	if (IsPlainLeftToRight(Text))
	{
		OutRuns.Add({Text.Len(), 0});
		return 0;
	}
	static thread_local FBidi Shared;
	UBiDi* Bidi = Shared.Set(Text);
	for (int32 Begin = 0; Begin < Text.Len();)
	{
		int32 End = Begin;
		UBiDiLevel Level = 0;
		ubidi_getLogicalRun(Bidi, Begin, &End, &Level);
		OutRuns.Add({End, Level});
		Begin = End;
	}
	return ubidi_getParaLevel(Bidi);
}

void TextBoundaries::ReorderVisually(const TArray<uint8>& Levels, TArray<int32>& OutOrder)
{
	OutOrder.SetNum(Levels.Num());
	if (Levels.Num() > 0)
	{
		ubidi_reorderVisual(Levels.GetData(), Levels.Num(), OutOrder.GetData());
	}
}

int32 TextBoundaries::NextGrapheme(FStringView Text, int32 Offset)
{
	if (Offset + 1 >= Text.Len() || IsSimpleBoundary(Text, Offset + 1))
	{
		return FMath::Min(Offset + 1, Text.Len());
	}
	return ubrk_following(GraphemeIterator(Text), Offset);
}

int32 TextBoundaries::PreviousGrapheme(FStringView Text, int32 Offset)
{
	if (Offset <= 1 || IsSimpleBoundary(Text, Offset - 1))
	{
		return FMath::Max(Offset - 1, 0);
	}
	return ubrk_preceding(GraphemeIterator(Text), Offset);
}

int32 TextBoundaries::NextWordBegin(FStringView Text, int32 Offset)
{
	UBreakIterator* Iterator = WordIterator(Text);
	int32 Next = Offset;
	do
	{
		Next = Next < Text.Len() ? ubrk_following(Iterator, Next) : Text.Len();
	} while (Next < Text.Len() && IsBlank(Text, Next));
	return Next;
}

int32 TextBoundaries::PreviousWordBegin(FStringView Text, int32 Offset)
{
	UBreakIterator* Iterator = WordIterator(Text);
	int32 Previous = Offset;
	do
	{
		Previous = Previous > 0 ? ubrk_preceding(Iterator, Previous) : 0;
	} while (Previous > 0 && IsBlank(Text, Previous));
	return Previous;
}

FTextRange TextBoundaries::FindWordAt(FStringView Text, int32 Offset)
{
	if (Text.IsEmpty())
	{
		return FTextRange(0, 0);
	}
	UBreakIterator* Iterator = WordIterator(Text);
	const int32 Inside = FMath::Clamp(Offset, 0, Text.Len() - 1);
	const int32 End = ubrk_following(Iterator, Inside);
	return FTextRange(ubrk_preceding(Iterator, End), End);
}
