// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TextLines.h"

#include "Containers/StringView.h"

#include <algorithm>

int32 TextLines::FindLine(FStringView Text, int32 Begin, FTextRange& OutLine)
{
	const int32 End = static_cast<int32>(std::find(Text.begin() + Begin, Text.end(), TEXT('\n')) - Text.begin());
	const bool bCarriageReturn = End < Text.Len() && End > Begin && Text[End - 1] == TEXT('\r');
	OutLine = FTextRange(Begin, bCarriageReturn ? End - 1 : End);
	return End < Text.Len() ? End + 1 : INDEX_NONE;
}

TArray<FTextLayout::FNewLineData> TextLines::MakePlainLines(FStringView Text)
{
	TArray<FTextLayout::FNewLineData> Lines;
	FTextRange Line;
	for (int32 Begin = 0; Begin != INDEX_NONE;)
	{
		Begin = FindLine(Text, Begin, Line);
		Lines.Add({MakeShared<FString>(Text.Mid(Line.BeginIndex, Line.Len())), {}});
	}
	return Lines;
}
