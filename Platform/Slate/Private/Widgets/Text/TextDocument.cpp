// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TextDocument.h"

#include "Containers/StringView.h"
#include "Framework/Text/ITextLayoutMarshaller.h"
#include "Framework/Text/TextLines.h"

FTextDocument::FTextDocument(const TSharedRef<FSlateTextLayout>& InLayout, const TSharedRef<ITextLayoutMarshaller>& InMarshaller)
	: Layout(InLayout)
	, Marshaller(InMarshaller)
{
	SetText(FString());
}

void FTextDocument::SetText(const FString& Text)
{
	Layout->ClearLines();
	Marshaller->SetText(Text, *Layout);
	Marshaller->ClearDirty();
	if (Layout->GetLineCount() == 0)
	{
		Layout->AddLines(TextLines::MakePlainLines(FStringView()));
	}
}

FString FTextDocument::GetText() const
{
	FString Text;
	Marshaller->GetText(Text, *Layout);
	return Text;
}

FString FTextDocument::GetText(const FTextSelection& Range) const
{
	FString Text;
	Layout->GetSelectionAsText(Text, Range);
	return Text;
}

FTextLocation FTextDocument::Replace(const FTextSelection& Range, FStringView NewText)
{
	const FTextLocation Begin = Range.GetBeginning();
	const FTextLocation End = Range.GetEnd();
	FString Lines = Layout->GetLineText(Begin.GetLineIndex()).Left(Begin.GetOffset());
	Lines.Append(NewText);
	Lines.Append(FStringView(Layout->GetLineText(End.GetLineIndex())).RightChop(End.GetOffset()));
	const int32 Behind = Layout->GetLineText(End.GetLineIndex()).Len() - End.GetOffset();

	const TArray<FTextLayout::FNewLineData> NewLines = TextLines::MakePlainLines(Lines);
	Layout->ReplaceLines(Begin.GetLineIndex(), End.GetLineIndex() - Begin.GetLineIndex() + 1, NewLines);
	Marshaller->MakeDirty();
	if (Marshaller->RequiresLiveUpdate())
	{
		SetText(GetText());
	}
	return FTextLocation(Begin.GetLineIndex() + NewLines.Num() - 1, NewLines.Last().Text->Len() - Behind);
}

FTextLocation FTextDocument::Clamp(const FTextLocation& Location) const
{
	if (Location > GetEnd())
	{
		return GetEnd();
	}
	const int32 LineLength = Layout->GetLineText(Location.GetLineIndex()).Len();
	return FTextLocation(Location.GetLineIndex(), FMath::Min(Location.GetOffset(), LineLength));
}

FTextLocation FTextDocument::Advance(FTextLocation Location, int32 Units) const
{
	int32 Line = Location.GetLineIndex();
	int32 Offset = Location.GetOffset() + Units;
	while (Offset < 0 && Line > 0)
	{
		--Line;
		Offset += Layout->GetLineText(Line).Len() + 1;
	}
	while (Line + 1 < Layout->GetLineCount() && Offset > Layout->GetLineText(Line).Len())
	{
		Offset -= Layout->GetLineText(Line).Len() + 1;
		++Line;
	}
	return Clamp(FTextLocation(Line, FMath::Max(Offset, 0)));
}

namespace
{
bool IsLineEnd(TCHAR Character)
{
	return Character == TEXT('\n') || Character == TEXT('\r') || Character == 0x0085 || Character == 0x2028 || Character == 0x2029;
}

bool IsControl(TCHAR Character)
{
	return Character < 0x20 || (Character >= 0x7F && Character < 0xA0);
}
} // namespace

FString CleanInputText(FStringView Text, bool bAllowMultiLine)
{
	FString Result;
	Result.Reserve(Text.Len());
	for (int32 Index = 0; Index < Text.Len(); ++Index)
	{
		const TCHAR Character = Text[Index];
		const bool bSecondOfPair = Character == TEXT('\n') && Index > 0 && Text[Index - 1] == TEXT('\r');
		if (IsLineEnd(Character) && !bSecondOfPair)
		{
			Result.AppendChar(bAllowMultiLine ? TEXT('\n') : TEXT(' '));
		}
		else if (Character == TEXT('\t') || !(IsLineEnd(Character) || IsControl(Character)))
		{
			Result.AppendChar(Character);
		}
	}
	return Result;
}
