// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "MeasuredText.h"

#include "Containers/StringView.h"
#include "TextBoundaries.h"

#include <algorithm>
#include <unicode/uchar.h>

namespace
{
constexpr TCHAR ObjectReplacement = 0xFFFC;

bool IsHangingBlank(TCHAR Character)
{
	return Character == TEXT(' ') || (u_isUWhiteSpace(Character) && Character != 0x00A0 && Character != 0x202F);
}

/** Cuts a line into units and measures them, walking over runs, levels and line breaks side by side. */
class FUnitCutter
{
public:
	FUnitCutter(
		FStringView InText, const TArray<TSharedRef<IRun>>& InRuns, float InScale, ETextShapingMethod InMethod, FMeasuredText& InResult)
		: Text(InText)
		, Runs(InRuns)
		, Scale(InScale)
		, Method(InMethod)
		, Result(InResult)
	{
	}

	void Cut()
	{
		const FString Marked = MarkObjects();
		const FStringView Analyzed = Marked.IsEmpty() ? Text : FStringView(Marked);
		Result.ParagraphLevel = TextBoundaries::FindLevels(Analyzed, Levels);
		TextBoundaries::FindLineBreaks(Analyzed, Breaks);
		Result.Units.Reserve(FMath::Max(Breaks.Num(), Runs.Num()));
		for (int32 Begin = 0; Begin < Text.Len();)
		{
			Begin = AddUnit(Begin);
		}
	}

private:
	/** The text as it is to be analyzed; empty where that is the text itself. What stands for a widget must not glue it to a blank. */
	FString MarkObjects() const
	{
		FString Marked;
		for (const TSharedRef<IRun>& Run : Runs)
		{
			if (Run->GetRunAttributes() != ERunAttributes::SupportsText)
			{
				Marked = Marked.IsEmpty() ? FString(Text) : MoveTemp(Marked);
				Marked[Run->GetTextRange().BeginIndex] = ObjectReplacement;
			}
		}
		return Marked;
	}

	int32 AddUnit(int32 Begin)
	{
		Advance(Begin);
		FTextUnit Unit;
		Unit.Begin = Begin;
		Unit.End = LimitLength(Begin, std::min({Runs[RunIndex]->GetTextRange().EndIndex, Levels[LevelIndex].End, Breaks[BreakIndex]}));
		Unit.RunIndex = RunIndex;
		Unit.Level = Levels[LevelIndex].Level;
		Unit.bCanWrapAfter = Unit.End == Breaks[BreakIndex];
		Measure(Unit);
		Result.bHasTabs = Result.bHasTabs || Text[Begin] == TEXT('\t');
		Result.Units.Add(Unit);
		return Unit.End;
	}

	void Advance(int32 Begin)
	{
		while (Runs[RunIndex]->GetTextRange().EndIndex <= Begin)
		{
			++RunIndex;
		}
		while (Levels[LevelIndex].End <= Begin)
		{
			++LevelIndex;
		}
		while (Breaks[BreakIndex] <= Begin)
		{
			++BreakIndex;
		}
	}

	/** A tab stands alone, since its width is the run's to say; a long stretch is cut between graphemes. */
	int32 LimitLength(int32 Begin, int32 End) const
	{
		if (Text[Begin] == TEXT('\t'))
		{
			return Begin + 1;
		}
		for (int32 Index = Begin + 1; Index < FMath::Min(End, Begin + FTextUnit::MaxUnitLength); ++Index)
		{
			if (Text[Index] == TEXT('\t'))
			{
				return Index;
			}
		}
		return End - Begin > FTextUnit::MaxUnitLength ? CutLongStretch(Begin) : End;
	}

	int32 CutLongStretch(int32 Begin) const
	{
		// Only this far, since a heap of marks would be searched from its beginning at each cut.
		const FStringView Window = Text.Mid(Begin, FTextUnit::MaxUnitLength + 1);
		const int32 Cut = Begin + TextBoundaries::PreviousGrapheme(Window, Window.Len());
		if (Cut > Begin)
		{
			return Cut;
		}
		// A single grapheme that is longer than a unit: anywhere will do, but for the middle of a character.
		const int32 Limit = Begin + FTextUnit::MaxUnitLength;
		return U16_IS_TRAIL(Text[Limit]) ? Limit - 1 : Limit;
	}

	void Measure(FTextUnit& Unit) const
	{
		const IRun& Run = *Runs[Unit.RunIndex];
		const FRunTextContext Context = MakeRunContext(Method, Unit.Level);
		Unit.Width = static_cast<float>(Run.Measure(Unit.Begin, Unit.End, Scale, Context).X);
		while (Unit.GetVisibleEnd() > Unit.Begin && IsHangingBlank(Text[Unit.GetVisibleEnd() - 1]))
		{
			++Unit.BlankCount;
		}
		Unit.VisibleWidth = MeasureVisible(Unit, Run, Context);
	}

	float MeasureVisible(const FTextUnit& Unit, const IRun& Run, const FRunTextContext& Context) const
	{
		if (Unit.BlankCount == 0 || Unit.GetVisibleEnd() == Unit.Begin)
		{
			return Unit.BlankCount == 0 ? Unit.Width : 0.0f;
		}
		const float Caret = Run.GetCaretOffset(Unit.GetRange(), Unit.GetVisibleEnd(), Scale, Context);
		return Context.TextDirection == TextBiDi::ETextDirection::RightToLeft ? Unit.Width - Caret : Caret;
	}

	FStringView Text;
	const TArray<TSharedRef<IRun>>& Runs;
	float Scale;
	ETextShapingMethod Method;
	FMeasuredText& Result;
	/** Kept from line to line for their memory. */
	static inline thread_local TArray<TextBoundaries::FLevelRun> Levels;
	static inline thread_local TArray<int32> Breaks;
	int32 RunIndex = 0;
	int32 LevelIndex = 0;
	int32 BreakIndex = 0;
};

FMeasuredText::FRunHeight MeasureHeight(const IRun& Run, float Scale)
{
	const int32 BaseLine = Run.GetBaseLine(Scale);
	return {Run.GetMaxHeight(Scale) + BaseLine, -BaseLine};
}
} // namespace

float FMeasuredText::GetWidth() const
{
	float X = 0.0f;
	float VisibleEnd = 0.0f;
	for (const FTextUnit& Unit : Units)
	{
		VisibleEnd = Unit.VisibleWidth > 0.0f ? X + Unit.VisibleWidth : VisibleEnd;
		X += Unit.Width;
	}
	return VisibleEnd;
}

FRunTextContext MakeRunContext(ETextShapingMethod ShapingMethod, uint8 Level)
{
	const bool bRightToLeft = (Level & 1) != 0;
	return {ShapingMethod, bRightToLeft ? TextBiDi::ETextDirection::RightToLeft : TextBiDi::ETextDirection::LeftToRight};
}

FMeasuredText MeasureText(FStringView Text, const TArray<TSharedRef<IRun>>& Runs, float Scale, ETextShapingMethod ShapingMethod)
{
	FMeasuredText Result;
	Result.RunHeights.Reserve(Runs.Num());
	for (const TSharedRef<IRun>& Run : Runs)
	{
		Result.RunHeights.Add(MeasureHeight(*Run, Scale));
	}
	FUnitCutter(Text, Runs, Scale, ShapingMethod, Result).Cut();
	return Result;
}
