// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TextScreen.h"

#include "Support/DrawnElements.h"
#include "Support/EvenTextShaper.h"

#include <algorithm>

FTextScreen::FTextScreen(const FSlateDrawChunk& DisplayList, const FLinearColor& SelectionColor, float InRowHeight)
	: RowHeight(InRowHeight)
{
	ForEachDrawn(DisplayList,
		[&](const FSlateDrawElement& Element, const FSlateRect& Clip)
		{
			const FSlateRect Place = Element.GetGeometry().GetRenderBoundingRect();
			if (const auto* Text = std::get_if<FSlateTextPayload>(&Element.GetPayload()))
			{
				AddText(static_cast<const FReadableShapedText&>(*Text->Text), Place, Clip);
			}
			else if (std::holds_alternative<FSlateBoxPayload>(Element.GetPayload()) && Place.Bottom - RowHeight / 2.0f > Clip.Top)
			{
				AddBox(Place, Element.GetTint() == SelectionColor);
			}
		});
	for (TArray<FPiece>& Row : Rows)
	{
		std::stable_sort(Row.begin(), Row.end(), [](const FPiece& A, const FPiece& B) { return A.Left < B.Left; });
	}
}

TArray<FTextScreen::FPiece>& FTextScreen::FindRow(float Top, TArray<TArray<FPiece>>& In) const
{
	const int32 Row = FMath::RoundToInt(Top / RowHeight);
	In.SetNum(FMath::Max(In.Num(), Row + 1));
	return In[Row];
}

void FTextScreen::AddText(const FReadableShapedText& Text, const FSlateRect& Place, const FSlateRect& Clip)
{
	const float Middle = Place.Top + RowHeight / 2.0f;
	for (int32 Index = 0; Index < Text.Letters.Len() && Middle > Clip.Top && Middle < Clip.Bottom; ++Index)
	{
		TArray<FPiece>& Row = FindRow(Place.Top, Rows);
		const float A = Place.Left + Text.CaretOffsets[Index];
		const float B = Place.Left + Text.CaretOffsets[Index + 1];
		if (A == B && !Row.IsEmpty())
		{
			Row.Last().Text.AppendChar(Text.Letters[Index]);
		}
		else if ((A + B) / 2.0f > Clip.Left && (A + B) / 2.0f < Clip.Right)
		{
			Row.Add({FMath::Min(A, B), FMath::Max(A, B), FString::Chr(Text.Letters[Index])});
		}
	}
}

void FTextScreen::AddBox(const FSlateRect& Place, bool bSelection)
{
	const bool bUnderline = Place.Bottom - Place.Top <= RowHeight / 2.0f;
	TArray<FPiece>& Row = FindRow(Place.Bottom - RowHeight, Marks);
	if (bSelection || bUnderline)
	{
		Row.Add({Place.Left, Place.Left, bSelection ? TEXT("[") : TEXT("{")});
		Row.Add({Place.Right, Place.Right, bSelection ? TEXT("]") : TEXT("}")});
	}
	else if (Place.Right - Place.Left <= 2.0f)
	{
		Row.Add({Place.Left, Place.Left, TEXT("|")});
	}
}

FString FTextScreen::ToString() const
{
	FString Result;
	for (int32 Index = 0; Index < FMath::Max(Rows.Num(), Marks.Num()); ++Index)
	{
		TArray<FPiece> Pieces = Index < Rows.Num() ? Rows[Index] : TArray<FPiece>();
		Pieces.Append(Index < Marks.Num() ? Marks[Index] : TArray<FPiece>());
		// At the same gap what ends comes before the caret, and what begins behind it.
		const auto GetOrder = [this](const FPiece& Piece)
		{
			const int32 Mark = Piece.Left < Piece.Right ? INDEX_NONE : FString(TEXT("]}|[{")).Find(Piece.Text);
			return std::pair(FMath::RoundToInt(2.0f * ToColumn(Piece.Left)), Mark == INDEX_NONE ? 5 : Mark);
		};
		std::stable_sort(Pieces.begin(), Pieces.end(), [&](const FPiece& A, const FPiece& B) { return GetOrder(A) < GetOrder(B); });
		Result += Index > 0 ? TEXT("\n") : TEXT("");
		for (const FPiece& Piece : Pieces)
		{
			Result += Piece.Text;
		}
	}
	return Result.Replace(TEXT("]["), TEXT("")).Replace(TEXT("[]"), TEXT(""));
}

FString FTextScreen::ToGrid() const
{
	FString Result;
	for (const TArray<FPiece>& Row : Rows)
	{
		FString Line;
		for (const FPiece& Letter : Row)
		{
			Line += FString::ChrN(FMath::Max(FMath::RoundToInt(ToColumn(Letter.Left)) - Line.Len(), 0), TEXT(' '));
			Line += Letter.Text == TEXT("\t") ? TEXT("") : *Letter.Text;
		}
		Result += (Result.IsEmpty() ? TEXT("") : TEXT("\n")) + Line.TrimEnd();
	}
	return Result;
}
