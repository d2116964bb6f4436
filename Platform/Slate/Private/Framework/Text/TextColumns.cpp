// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TextColumns.h"

#include "Containers/StringView.h"

#include <algorithm>
#include <limits>

namespace
{
constexpr TCHAR Bullet = 0x2022;

int32 SkipBlanks(FStringView Text, int32 Index)
{
	while (Index < Text.Len() && Text[Index] == TEXT(' '))
	{
		++Index;
	}
	return Index;
}

bool IsDigit(FStringView Text, int32 Index)
{
	return Index < Text.Len() && Text[Index] >= TEXT('0') && Text[Index] <= TEXT('9');
}

/** Where the text behind a bullet or a number begins; `Index` itself where there is none. */
int32 SkipListMark(FStringView Text, int32 Index)
{
	int32 End = Index;
	while (IsDigit(Text, End))
	{
		++End;
	}
	const bool bNumber = End > Index && End < Text.Len() && (Text[End] == TEXT('.') || Text[End] == TEXT(')'));
	const bool bBullet = End == Index && End < Text.Len() && Text[End] == Bullet;
	const int32 TextBegin = bNumber || bBullet ? SkipBlanks(Text, End + 1) : Index;
	return TextBegin > End + 1 ? TextBegin : Index;
}

/** The beginning of an indented text, behind the marks of its list items; 0 for a text that is not indented. */
int32 FindTextBegin(FStringView Text)
{
	int32 Begin = SkipBlanks(Text, 0);
	for (int32 Next = Begin > 0 ? SkipListMark(Text, Begin) : Begin; Next != Begin; Next = SkipListMark(Text, Begin))
	{
		Begin = Next;
	}
	return Begin;
}

/** Neighbouring lines that hold tabs. */
class FTable
{
public:
	void AddRow(FTextLine& Row)
	{
		Rows.Add(&Row);
		int32 Column = 0;
		float CellWidth = 0.0f;
		for (const FTextUnit& Unit : Row.Measured.Units)
		{
			if (IsTab(Row, Unit))
			{
				Widen(Column++, CellWidth + GetGap(Row, Unit));
				CellWidth = 0.0f;
				continue;
			}
			CellWidth += Unit.Width;
		}
	}

	void Align(float MaxWidth)
	{
		Squeeze(MaxWidth * FWrappedLine::MaxIndentShare);
		for (FTextLine* Row : Rows)
		{
			AlignRow(*Row);
		}
		Rows.Reset();
		Widths.Reset();
	}

private:
	static bool IsTab(const FTextLine& Row, const FTextUnit& Unit) { return (*Row.Text)[Unit.Begin] == TEXT('\t'); }

	/** Between two cells at least; in proportion to the letters. */
	static float GetGap(const FTextLine& Row, const FTextUnit& Tab)
	{
		const FMeasuredText::FRunHeight& Height = Row.Measured.RunHeights[Tab.RunIndex];
		return static_cast<float>(Height.Above + Height.Below);
	}

	void Widen(int32 Column, float Width)
	{
		if (Column == Widths.Num())
		{
			Widths.Add(0.0f);
		}
		Widths[Column] = FMath::Max(Widths[Column], Width);
	}

	/** Limits the widest columns, all to the same width, so that they take no more than `Room` together. */
	void Squeeze(float Room)
	{
		TArray<float> Sorted = Widths;
		std::sort(Sorted.begin(), Sorted.end());
		float Limit = std::numeric_limits<float>::infinity();
		for (int32 Index = 0; Index < Sorted.Num(); ++Index)
		{
			const float Share = Room / static_cast<float>(Sorted.Num() - Index);
			if (Sorted[Index] > Share)
			{
				Limit = Share;
				break;
			}
			Room -= Sorted[Index];
		}
		float Stop = 0.0f;
		for (float& Width : Widths)
		{
			Stop = FMath::CeilToFloat(Stop + FMath::Min(Width, Limit));
			Width = Stop;
		}
	}

	/** By now the widths have become stops. */
	void AlignRow(FTextLine& Row) const
	{
		int32 Column = 0;
		float X = 0.0f;
		for (FTextUnit& Unit : Row.Measured.Units)
		{
			if (IsTab(Row, Unit))
			{
				const float Width = FMath::Max(Widths[Column++] - X, GetGap(Row, Unit));
				Row.bIsWrapped = Row.bIsWrapped && Unit.Width == Width;
				Unit.Width = Width;
				Unit.bIndents = true;
			}
			X += Unit.Width;
		}
	}

	TArray<FTextLine*> Rows;
	/** With the gap behind each column. */
	TArray<float> Widths;
};
} // namespace

void TextColumns::MarkIndent(FTextLine& Line)
{
	const int32 Begin = FindTextBegin(*Line.Text);
	for (FTextUnit& Unit : Line.Measured.Units)
	{
		if (Unit.End >= Begin)
		{
			Unit.bIndents = Unit.End == Begin;
			return;
		}
	}
}

void TextColumns::AlignTabs(const TArray<TSharedRef<FTextLine>>& Lines, float Width)
{
	FTable Table;
	for (const TSharedRef<FTextLine>& Line : Lines)
	{
		if (Line->Measured.bHasTabs)
		{
			Table.AddRow(*Line);
			continue;
		}
		Table.Align(Width);
	}
	Table.Align(Width);
}
