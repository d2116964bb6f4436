// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TextScreen.h"

#include "Rendering/DrawElements.h"
#include "Support/EvenTextShaper.h"

FTextScreen::FTextScreen(const FSlateDrawChunk& DisplayList, const FLinearColor& InSelectionColor, float InRowHeight)
	: SelectionColor(InSelectionColor)
	, RowHeight(InRowHeight)
{
	Read(DisplayList, FSlateRect::Everything());
	for (TArray<FCell>& Row : Rows)
	{
		Row.StableSort([](const FCell& A, const FCell& B) { return A.Left < B.Left; });
	}
}

void FTextScreen::Read(const FSlateDrawChunk& Chunk, FSlateRect Clip)
{
	Clip = Chunk.GetClip().IsSet() ? Clip.IntersectionWith(Chunk.GetClip().GetValue()) : Clip;
	for (const FSlateDrawChunk::FItem& Item : Chunk.GetItems())
	{
		if (const auto* Child = std::get_if<TSharedRef<const FSlateDrawChunk>>(&Item))
		{
			Read(**Child, Clip);
			continue;
		}
		const FSlateDrawElement& Element = std::get<FSlateDrawElement>(Item);
		const FSlateRect Rect = Element.GetGeometry().GetRenderBoundingRect();
		if (const auto* Text = std::get_if<FSlateTextPayload>(&Element.GetPayload()))
		{
			ReadText(static_cast<const FReadableShapedText&>(*Text->Text), Rect.GetTopLeft(), Clip);
		}
		else if (std::holds_alternative<FSlateBoxPayload>(Element.GetPayload()))
		{
			ReadBox(Rect, Element.GetTint());
		}
	}
}

int32 FTextScreen::FindRow(float Y) const
{
	return FMath::RoundToInt(Y / RowHeight);
}

void FTextScreen::ReadText(const FReadableShapedText& Text, const FVector2D& TopLeft, const FSlateRect& Clip)
{
	const float Top = static_cast<float>(TopLeft.Y);
	const int32 Row = FindRow(Top);
	if (Top + RowHeight / 2 <= Clip.Top || Top + RowHeight / 2 >= Clip.Bottom)
	{
		return;
	}
	Rows.SetNum(FMath::Max(Rows.Num(), Row + 1));
	for (int32 Index = 0; Index < Text.Letters.Len(); ++Index)
	{
		const float A = static_cast<float>(TopLeft.X) + Text.CaretOffsets[Index];
		const float B = static_cast<float>(TopLeft.X) + Text.CaretOffsets[Index + 1];
		const float Middle = (A + B) / 2.0f;
		if (A == B && !Rows[Row].IsEmpty())
		{
			Rows[Row].Last().Letter.AppendChar(Text.Letters[Index]);
		}
		else if (Middle > Clip.Left && Middle < Clip.Right)
		{
			Rows[Row].Add({FMath::Min(A, B), FMath::Max(A, B), FString::Chr(Text.Letters[Index])});
		}
	}
}

void FTextScreen::ReadBox(const FSlateRect& Rect, const FLinearColor& Tint)
{
	const bool bRow = Rect.Bottom - Rect.Top > RowHeight / 2;
	if (Tint == SelectionColor)
	{
		Selection.Add(Rect);
	}
	else if (bRow && Rect.Right - Rect.Left <= 2.0f)
	{
		Carets.Add(Rect);
		Rows.SetNum(FMath::Max(Rows.Num(), FindRow(Rect.Top) + 1));
	}
	else if (!bRow)
	{
		Composition.Add(Rect);
	}
}

bool FTextScreen::IsMarked(const TArray<FSlateRect>& Marks, int32 Row, const FCell& Cell) const
{
	const FVector2D Middle((Cell.Left + Cell.Right) / 2.0f, 0.0);
	return Marks.ContainsByPredicate(
		[&](const FSlateRect& Mark) { return FindRow(Mark.Bottom - RowHeight) == Row && Middle.X > Mark.Left && Middle.X < Mark.Right; });
}

FString FTextScreen::PrintRow(int32 Row) const
{
	FString Result;
	const auto AddCaret = [&](float From, float To)
	{
		const bool bHere = Carets.ContainsByPredicate(
			[&](const FSlateRect& Caret) { return FindRow(Caret.Top) == Row && Caret.Left >= From && Caret.Left < To; });
		Result += bHere ? TEXT("|") : TEXT("");
	};
	float Reached = -1.0e9f;
	bool bSelected = false;
	bool bComposed = false;
	const auto Mark = [&](bool bNowSelected, bool bNowComposed)
	{
		Result += bSelected && !bNowSelected ? TEXT("]") : TEXT("");
		Result += bComposed && !bNowComposed ? TEXT("}") : TEXT("");
		Result += !bSelected && bNowSelected ? TEXT("[") : TEXT("");
		Result += !bComposed && bNowComposed ? TEXT("{") : TEXT("");
		bSelected = bNowSelected;
		bComposed = bNowComposed;
	};
	for (const FCell& Cell : Rows[Row])
	{
		const float Middle = (Cell.Left + Cell.Right) / 2.0f;
		const bool bNowSelected = IsMarked(Selection, Row, Cell);
		const bool bNowComposed = IsMarked(Composition, Row, Cell);
		Mark(bSelected && bNowSelected, bComposed && bNowComposed);
		AddCaret(Reached, Middle);
		Mark(bNowSelected, bNowComposed);
		Result += Cell.Letter;
		Reached = Middle;
	}
	Mark(false, false);
	AddCaret(Reached, 1.0e9f);
	return Result;
}

FString FTextScreen::ToString() const
{
	FString Result;
	for (int32 Row = 0; Row < Rows.Num(); ++Row)
	{
		Result += Row > 0 ? TEXT("\n") : TEXT("");
		Result += PrintRow(Row);
	}
	return Result;
}

FString FTextScreen::ToGrid(float LetterWidth) const
{
	FString Result;
	for (const TArray<FCell>& Row : Rows)
	{
		FString Line;
		for (const FCell& Cell : Row)
		{
			const int32 Column = FMath::RoundToInt(Cell.Left / LetterWidth);
			Line += FString::ChrN(FMath::Max(Column - Line.Len(), 0), TEXT(' '));
			Line += Cell.Letter == TEXT("\t") ? TEXT("") : *Cell.Letter;
		}
		Result += (Result.IsEmpty() ? TEXT("") : TEXT("\n")) + Line.TrimEnd();
	}
	return Result;
}

float FTextScreen::GetRowLeft(int32 Row) const
{
	return Rows[Row][0].Left;
}

float FTextScreen::GetRowRight(int32 Row) const
{
	return Rows[Row].Last().Right;
}
