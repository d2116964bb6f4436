// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Text/TextLayout.h"

#include "TextColumns.h"
#include "TextLine.h"

#include <limits>

namespace
{
/** Measuring fewer lines anew costs less than looking for them. */
constexpr int32 MinLinesOfTwin = 50;
constexpr int32 MaxLongLayouts = 16;

/** The layouts that were given many lines lately. */
TArray<const FTextLayout*>& GetLongLayouts()
{
	static TArray<const FTextLayout*> Layouts;
	return Layouts;
}
} // namespace

FTextLayout::FTextLayout() = default;

FTextLayout::~FTextLayout()
{
	GetLongLayouts().Remove(this);
}

void FTextLayout::ClearLines()
{
	OldLines = MoveTemp(Lines);
	Lines.Reset();
	bNeedsUpdate = true;
	OnLinesChanged();
}

void FTextLayout::AddLines(const TArray<FNewLineData>& NewLines)
{
	if (Lines.IsEmpty() && NewLines.Num() >= MinLinesOfTwin)
	{
		CopyLinesOfTwin(NewLines);
	}
	Lines.Reserve(Lines.Num() + NewLines.Num());
	for (const FNewLineData& Data : NewLines)
	{
		Lines.Add(MakeLine(Data, Lines.Num()));
	}
	bNeedsUpdate = true;
	OnLinesChanged();
}

void FTextLayout::CopyLinesOfTwin(const TArray<FNewLineData>& NewLines)
{
	if (const FTextLayout* Twin = FindTwin(NewLines))
	{
		Scale = Twin->Scale;
		OldLines.Reset();
		for (int32 Index = 0; Index < Twin->Lines.Num() && Index < NewLines.Num() && Twin->Lines[Index]->Text == NewLines[Index].Text;
			 ++Index)
		{
			OldLines.Add(MakeShared<FTextLine>(*Twin->Lines[Index]));
		}
	}
	TArray<const FTextLayout*>& Layouts = GetLongLayouts();
	Layouts.Remove(this);
	if (Layouts.Num() == MaxLongLayouts)
	{
		Layouts.RemoveAt(0);
	}
	Layouts.Add(this);
}

const FTextLayout* FTextLayout::FindTwin(const TArray<FNewLineData>& NewLines) const
{
	// A layout with columns has widened its tabs.
	const FTextLayout* const* Found = GetLongLayouts().FindByPredicate(
		[&](const FTextLayout* Layout)
		{
			return !bKeepsColumns && !Layout->bKeepsColumns && Layout->ShapingMethod == ShapingMethod && !Layout->Lines.IsEmpty() &&
				   Layout->Lines[0]->Text == NewLines[0].Text;
		});
	return Found ? *Found : nullptr;
}

void FTextLayout::ReplaceLines(int32 FirstLine, int32 Count, const TArray<FNewLineData>& NewLines)
{
	TArray<TSharedRef<FTextLine>> Following;
	for (int32 Index = FirstLine + Count; Index < Lines.Num(); ++Index)
	{
		Following.Add(Lines[Index]);
	}
	Lines.RemoveAt(FirstLine, Lines.Num() - FirstLine);
	OldLines.Reset();
	AddLines(NewLines);
	Lines.Append(MoveTemp(Following));
	OnLinesChanged();
}

TSharedRef<FTextLine> FTextLayout::MakeLine(const FNewLineData& Data, int32 Index) const
{
	const bool bHasOld = OldLines.IsValidIndex(Index);
	if (bHasOld && OldLines[Index]->Text == Data.Text)
	{
		return OldLines[Index];
	}
	TArray<TSharedRef<IRun>> Runs = Data.Runs;
	if (Runs.IsEmpty())
	{
		Runs.Add(CreateDefaultTextRun(Data.Text, FTextRange(0, Data.Text->Len())));
	}
	return bHasOld && OldLines[Index]->HasSameContent(*Data.Text, Runs) ? OldLines[Index]
																		: MakeShared<FTextLine>(Data.Text, MoveTemp(Runs));
}

const FString& FTextLayout::GetLineText(int32 LineIndex) const
{
	return *Lines[LineIndex]->Text;
}

FTextLocation FTextLayout::GetEnd() const
{
	return Lines.IsEmpty() ? FTextLocation() : FTextLocation(Lines.Num() - 1, Lines.Last()->Text->Len());
}

void FTextLayout::GetAsText(FString& OutText) const
{
	GetSelectionAsText(OutText, FTextSelection(FTextLocation(), GetEnd()));
}

void FTextLayout::GetSelectionAsText(FString& OutText, const FTextSelection& Selection) const
{
	const FTextLocation Begin = Selection.GetBeginning();
	const FTextLocation End = Selection.GetEnd();
	for (int32 Index = Begin.GetLineIndex(); Index <= End.GetLineIndex() && Index < Lines.Num(); ++Index)
	{
		const FStringView Line = *Lines[Index]->Text;
		const int32 From = Index == Begin.GetLineIndex() ? Begin.GetOffset() : 0;
		const int32 To = Index == End.GetLineIndex() ? End.GetOffset() : Line.Len();
		OutText.Append(Line.Mid(From, To - From));
		if (Index < End.GetLineIndex())
		{
			OutText.AppendChar(TEXT('\n'));
		}
	}
}

void FTextLayout::SetScale(float InScale)
{
	if (Scale != InScale)
	{
		Scale = InScale;
		InvalidateMeasurements();
	}
}

void FTextLayout::SetWrappingWidth(float Width)
{
	if (WrappingWidth != Width)
	{
		WrappingWidth = Width;
		bNeedsUpdate = true;
	}
}

void FTextLayout::SetViewWidth(float Width)
{
	ViewWidth = Width;
}

void FTextLayout::SetMargin(const FMargin& InMargin)
{
	Margin = InMargin;
	bNeedsUpdate = true;
}

void FTextLayout::SetJustification(ETextJustify::Type InJustification)
{
	Justification = InJustification;
}

void FTextLayout::SetTextShapingMethod(ETextShapingMethod InMethod)
{
	if (ShapingMethod != InMethod)
	{
		ShapingMethod = InMethod;
		InvalidateMeasurements();
	}
}

void FTextLayout::SetKeepsColumns(bool bInKeepsColumns)
{
	if (bKeepsColumns != bInKeepsColumns)
	{
		bKeepsColumns = bInKeepsColumns;
		InvalidateMeasurements();
	}
}

void FTextLayout::DirtyLine(int32 LineIndex)
{
	Lines[LineIndex]->bIsMeasured = false;
	bNeedsUpdate = true;
}

void FTextLayout::InvalidateMeasurements()
{
	for (const TSharedRef<FTextLine>& Line : Lines)
	{
		Line->bIsMeasured = false;
	}
	OldLines.Reset();
	bNeedsUpdate = true;
}

void FTextLayout::UpdateIfNeeded()
{
	if (!bNeedsUpdate)
	{
		return;
	}
	bNeedsUpdate = false;
	OldLines.Reset();
	const float Width = GetWrappingWidthInPixels();
	for (const TSharedRef<FTextLine>& Line : Lines)
	{
		MeasureLine(*Line);
	}
	if (bKeepsColumns)
	{
		TextColumns::AlignTabs(Lines, Width);
	}
	TextWidth = 0.0f;
	UnwrappedWidth = 0.0f;
	TextHeight = 0.0;
	for (int32 Index = 0; Index < Lines.Num(); ++Index)
	{
		const TSharedRef<FTextLine>& Line = Lines[Index];
		WrapLine(*Line, Width);
		Line->Index = Index;
		Line->Top = TextHeight;
		TextHeight += Line->GetHeight();
		TextWidth = FMath::Max(TextWidth, Line->Width);
		UnwrappedWidth = FMath::Max(UnwrappedWidth, Line->UnwrappedWidth);
	}
}

void FTextLayout::MeasureLine(FTextLine& Line) const
{
	if (!Line.bIsMeasured)
	{
		Line.Measured = MeasureText(*Line.Text, Line.Runs, Scale, ShapingMethod);
		Line.bIsMeasured = true;
		Line.bIsWrapped = false;
		if (bKeepsColumns)
		{
			TextColumns::MarkIndent(Line);
		}
	}
}

void FTextLayout::WrapLine(FTextLine& Line, float Width) const
{
	if (!Line.bIsWrapped || Line.WrappedAt != Width)
	{
		Line.WrappedLines = ::WrapLine(*Line.Text, Line.Runs, Line.Measured, Width, Scale, ShapingMethod);
		Line.WrappedAt = Width;
		Line.bIsWrapped = true;
		Line.UnwrappedWidth = Line.Measured.GetWidth();
		Line.Width = 0.0f;
		for (const FWrappedLine& Wrapped : Line.WrappedLines)
		{
			Line.Width = FMath::Max(Line.Width, Wrapped.Width);
		}
	}
}

float FTextLayout::GetWrappingWidthInPixels() const
{
	return WrappingWidth > 0.0f ? FMath::Max(0.0f, (WrappingWidth - Margin.Left - Margin.Right) * Scale)
								: std::numeric_limits<float>::infinity();
}

float FTextLayout::GetJustificationWidth() const
{
	return FMath::Max((ViewWidth - Margin.Left - Margin.Right) * Scale, TextWidth);
}

FVector2D FTextLayout::GetTextOrigin() const
{
	return FVector2D(FMath::RoundToFloat(Margin.Left * Scale), FMath::RoundToFloat(Margin.Top * Scale));
}

FVector2D FTextLayout::GetSize() const
{
	check(!bNeedsUpdate);
	return FVector2D(ToUnits(TextWidth), TextHeight / Scale + Margin.Top + Margin.Bottom);
}

float FTextLayout::GetUnwrappedWidth() const
{
	check(!bNeedsUpdate);
	return ToUnits(UnwrappedWidth);
}

float FTextLayout::ToUnits(float Width) const
{
	// Whole pixels: wrapping at the very width that was asked for must not break a line because of a rounded fraction.
	return FMath::CeilToFloat(Width) / Scale + Margin.Left + Margin.Right;
}

float FTextLayout::GetLineLeft(const FTextLine& Line, const FWrappedLine& Wrapped) const
{
	const float Space = GetJustificationWidth() - Wrapped.Width;
	if (Justification == ETextJustify::Center)
	{
		return FMath::RoundToFloat(Space / 2.0f);
	}
	const bool bRightToLeft = (Line.Measured.ParagraphLevel & 1) != 0;
	return (Justification == ETextJustify::Right) != bRightToLeft ? Space : 0.0f;
}

FVector2D FTextLayout::GetTopLeft(const FTextLine& Line, const FWrappedLine& Wrapped) const
{
	return GetTextOrigin() + FVector2D(GetLineLeft(Line, Wrapped), Line.Top + Wrapped.Top);
}

bool FTextLayout::IsRightToLeft(int32 LineIndex) const
{
	return (Lines[LineIndex]->Measured.ParagraphLevel & 1) != 0;
}

int32 FTextLayout::FindLineAt(double Y) const
{
	int32 First = 0;
	int32 Count = Lines.Num();
	while (Count > 1)
	{
		const int32 Half = Count / 2;
		const bool bBelow = Lines[First + Half]->Top <= Y;
		First += bBelow ? Half : 0;
		Count = bBelow ? Count - Half : Half;
	}
	return First;
}

void FTextLayout::ForEachVisibleLine(
	float Top, float Bottom, const TFunction<void(const FTextLine&, const FWrappedLine&, const FVector2D&)>& Visitor) const
{
	check(!bNeedsUpdate);
	const double First = Top - GetTextOrigin().Y;
	const double Last = Bottom - GetTextOrigin().Y;
	for (int32 Index = FindLineAt(First); Index < Lines.Num() && Lines[Index]->Top < Last; ++Index)
	{
		const FTextLine& Line = *Lines[Index];
		for (int32 Wrapped = Line.FindWrappedAt(First - Line.Top); Wrapped < Line.WrappedLines.Num(); ++Wrapped)
		{
			const FWrappedLine& WrappedLine = Line.WrappedLines[Wrapped];
			if (Line.Top + WrappedLine.Top >= Last)
			{
				return;
			}
			Visitor(Line, WrappedLine, GetTopLeft(Line, WrappedLine));
		}
	}
}

FString FTextLayout::ToDebugString() const
{
	FString Result;
	ForEachVisibleLine(0.0f, std::numeric_limits<float>::max(),
		[&Result](const FTextLine& Line, const FWrappedLine& Wrapped, const FVector2D& TopLeft)
		{
			Result.Appendf(TEXT("%g,%g %gx%d:"), TopLeft.X, TopLeft.Y, static_cast<double>(Wrapped.Width), Wrapped.Height);
			for (const TSharedRef<IRun>& Run : Line.Runs)
			{
				const int32 Begin = FMath::Max(Run->GetTextRange().BeginIndex, Wrapped.Range.BeginIndex);
				const int32 End = FMath::Min(Run->GetTextRange().EndIndex, Wrapped.Range.EndIndex);
				if (Begin < End)
				{
					Result.Appendf(TEXT(" %s\"%s\""), *Run->GetRunInfo().Name, *Line.Text->Mid(Begin, End - Begin));
				}
			}
			Result.AppendChar(TEXT('\n'));
		});
	return Result;
}
