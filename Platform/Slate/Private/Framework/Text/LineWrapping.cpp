// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "LineWrapping.h"

#include "Containers/StringView.h"
#include "TextBoundaries.h"

#include <cmath>

namespace
{
/** Sums of advances differ a little from the width that was asked for because of them. */
constexpr float WidthTolerance = 0.01f;

class FLineWrapper
{
public:
	FLineWrapper(FStringView InText, const TArray<TSharedRef<IRun>>& InRuns, const FMeasuredText& InMeasured, float InWidth, float InScale,
		ETextShapingMethod InMethod)
		: Text(InText)
		, Runs(InRuns)
		, Measured(InMeasured)
		, MaxWidth(InWidth + WidthTolerance)
		, Scale(InScale)
		, Method(InMethod)
	{
	}

	TArray<FWrappedLine> Wrap()
	{
		while (UnitIndex < Measured.Units.Num())
		{
			AddUnit(Measured.Units[UnitIndex]);
		}
		// What is never wrapped has no edge that blanks could hang over: a label parts itself from its neighbour by them.
		FinishLine(Text.Len(), UnitIndex, std::isinf(MaxWidth) ? X : VisibleWidth);
		return MoveTemp(Lines);
	}

private:
	/** Where the present line could end if a later unit does not fit. */
	struct FBreak
	{
		int32 EndUnit = INDEX_NONE;
		float VisibleWidth = 0.0f;
	};

	void AddUnit(const FTextUnit& Unit)
	{
		float Width = Unit.Width;
		float Visible = Unit.VisibleWidth;
		if (LineBegin > Unit.Begin)
		{
			MeasureRest(Unit, Width, Visible);
		}
		if (Visible > 0.0f && X + Visible > MaxWidth && BreakBefore(Unit, Visible))
		{
			return;
		}
		VisibleWidth = Visible > 0.0f ? X + Visible : VisibleWidth;
		X += Width;
		++UnitIndex;
		if (Unit.bIndents && X <= MaxWidth * FWrappedLine::MaxIndentShare)
		{
			// A new line would begin here just the same.
			Indent = X;
			LastBreak = {};
		}
		else if (Unit.bCanWrapAfter)
		{
			LastBreak = {UnitIndex, VisibleWidth};
		}
	}

	/** Ends the line somewhere before the end of a unit that does not fit. Returns false where the unit must stay on it. */
	bool BreakBefore(const FTextUnit& Unit, float Visible)
	{
		if (LastBreak.EndUnit != INDEX_NONE)
		{
			const FBreak Break = LastBreak;
			UnitIndex = Break.EndUnit;
			FinishLine(Measured.Units[UnitIndex].Begin, UnitIndex, Break.VisibleWidth);
			return true;
		}
		const int32 Begin = FMath::Max(Unit.Begin, LineBegin);
		const int32 Cut = FindCut(Unit, Begin);
		if (Cut >= Unit.GetVisibleEnd())
		{
			return false;
		}
		if (Cut == Unit.Begin)
		{
			FinishLine(Cut, UnitIndex, VisibleWidth);
			return true;
		}
		FinishLine(Cut, UnitIndex + 1, X + Measure(Unit, FTextRange(Begin, Cut)));
		return true;
	}

	/** The last grapheme boundary up to which the unit fits; at least one grapheme stays on an empty line. */
	int32 FindCut(const FTextUnit& Unit, int32 Begin) const
	{
		int32 Cut = Begin;
		for (int32 Next = Begin; Next < Unit.GetVisibleEnd();)
		{
			Next = FMath::Min(TextBoundaries::NextGrapheme(Text, Next), Unit.End);
			const bool bFits = X + GetAdvance(Unit, Begin, Next) <= MaxWidth;
			if (!bFits && !(Begin == LineBegin && Cut == Begin))
			{
				break;
			}
			Cut = Next;
		}
		return Cut;
	}

	/** By the carets of the whole unit: shaping a part of it anew would give much the same, at a price. */
	float GetAdvance(const FTextUnit& Unit, int32 Begin, int32 End) const
	{
		return FMath::Abs(GetCaret(Unit, End) - GetCaret(Unit, Begin));
	}

	float GetCaret(const FTextUnit& Unit, int32 Index) const
	{
		const bool bLeftEdge = (Index == Unit.Begin) == ((Unit.Level & 1) == 0);
		if (Index == Unit.Begin || Index == Unit.End)
		{
			return bLeftEdge ? 0.0f : Unit.Width;
		}
		return Runs[Unit.RunIndex]->GetCaretOffset(Unit.GetRange(), Index, Scale, MakeRunContext(Method, Unit.Level));
	}

	float Measure(const FTextUnit& Unit, const FTextRange& Range) const
	{
		const FRunTextContext Context = MakeRunContext(Method, Unit.Level);
		return static_cast<float>(Runs[Unit.RunIndex]->Measure(Range.BeginIndex, Range.EndIndex, Scale, Context).X);
	}

	/** The line began within this unit. */
	void MeasureRest(const FTextUnit& Unit, float& OutWidth, float& OutVisible) const
	{
		OutWidth = Measure(Unit, FTextRange(LineBegin, Unit.End));
		OutVisible = OutWidth - (Unit.Width - Unit.VisibleWidth);
	}

	void FinishLine(int32 End, int32 EndUnit, float Width)
	{
		FWrappedLine& Line = Lines.AddDefaulted_GetRef();
		Line.Range = FTextRange(LineBegin, End);
		Line.FirstUnit = FirstUnit;
		Line.EndUnit = EndUnit;
		Line.Indent = LineIndent;
		Line.Width = Width;
		PlaceVertically(Line);
		LineBegin = End;
		FirstUnit = UnitIndex;
		X = VisibleWidth = LineIndent = Indent;
		LastBreak = {};
	}

	void PlaceVertically(FWrappedLine& Line) const
	{
		const bool bEmpty = Line.FirstUnit == Line.EndUnit;
		const int32 FirstRun = bEmpty ? 0 : Measured.Units[Line.FirstUnit].RunIndex;
		const int32 LastRun = bEmpty ? Runs.Num() - 1 : Measured.Units[Line.EndUnit - 1].RunIndex;
		int32 Below = 0;
		for (int32 Index = FirstRun; Index <= LastRun; ++Index)
		{
			Line.Ascent = FMath::Max(Line.Ascent, Measured.RunHeights[Index].Above);
			Below = FMath::Max(Below, Measured.RunHeights[Index].Below);
		}
		Line.Height = Line.Ascent + Below;
		Line.Top = Lines.Num() > 1 ? Lines[Lines.Num() - 2].GetBottom() : 0;
	}

	FStringView Text;
	const TArray<TSharedRef<IRun>>& Runs;
	const FMeasuredText& Measured;
	float MaxWidth;
	float Scale;
	ETextShapingMethod Method;
	TArray<FWrappedLine> Lines;

	/** The present line: where it begins, how wide it is with and without the blanks at its end. */
	int32 LineBegin = 0;
	int32 FirstUnit = 0;
	float LineIndent = 0.0f;
	float X = 0.0f;
	float VisibleWidth = 0.0f;
	FBreak LastBreak;
	/** Where the next one begins. */
	float Indent = 0.0f;
	int32 UnitIndex = 0;
};
} // namespace

TArray<FWrappedLine> WrapLine(FStringView Text, const TArray<TSharedRef<IRun>>& Runs, const FMeasuredText& Measured, float Width,
	float Scale, ETextShapingMethod ShapingMethod)
{
	return FLineWrapper(Text, Runs, Measured, Width, Scale, ShapingMethod).Wrap();
}
