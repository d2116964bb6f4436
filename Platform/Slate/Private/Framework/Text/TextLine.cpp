// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TextLine.h"

#include <algorithm>

bool FTextLine::HasSameContent(const FString& OtherText, const TArray<TSharedRef<IRun>>& OtherRuns) const
{
	if (Runs.Num() != OtherRuns.Num() || !Text->Equals(OtherText))
	{
		return false;
	}
	for (int32 Index = 0; Index < Runs.Num(); ++Index)
	{
		if (!Runs[Index]->IsSameAs(*OtherRuns[Index]))
		{
			return false;
		}
	}
	return true;
}

int32 FTextLine::FindWrappedAt(double Y) const
{
	const auto Found = std::upper_bound(
		WrappedLines.begin(), WrappedLines.end(), Y, [](double Value, const FWrappedLine& Line) { return Value < Line.GetBottom(); });
	return FMath::Min(static_cast<int32>(Found - WrappedLines.begin()), WrappedLines.Num() - 1);
}

int32 FTextLine::FindWrapped(int32 Offset) const
{
	const auto Found = std::upper_bound(WrappedLines.begin(), WrappedLines.end(), Offset,
		[](int32 Value, const FWrappedLine& Line) { return Value < Line.Range.BeginIndex; });
	return FMath::Max(static_cast<int32>(Found - WrappedLines.begin()) - 1, 0);
}

FTextRange FTextLine::GetSelectedRange(const FTextSelection& Selection) const
{
	const FTextLocation& Begin = Selection.GetBeginning();
	const FTextLocation& End = Selection.GetEnd();
	if (Index < Begin.GetLineIndex() || Index > End.GetLineIndex())
	{
		return FTextRange(0, 0);
	}
	return FTextRange(
		Index == Begin.GetLineIndex() ? Begin.GetOffset() : 0, Index == End.GetLineIndex() ? End.GetOffset() : Text->Len() + 1);
}
