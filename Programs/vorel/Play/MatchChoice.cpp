// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Play/MatchChoice.h"

static TArray<const FWidgetMatch*> Prefer(const TArray<FWidgetMatch>& Matches, int32 Needed)
{
	TArray<const FWidgetMatch*> Equal;
	TArray<const FWidgetMatch*> All;
	for (const FWidgetMatch& Match : Matches)
	{
		All.Add(&Match);
		if (Match.Match == ETextMatch::Equal)
		{
			Equal.Add(&Match);
		}
	}
	return Equal.Num() >= Needed ? Equal : All;
}

const FWidgetMatch* ChooseMatch(const TArray<FWidgetMatch>& Matches, const TOptional<int32>& Count,
	TFunctionRef<bool(const FWidgetMatch&)> IsInView, FString& OutProblem)
{
	const int32 Number = Count.Get(1);
	const TArray<const FWidgetMatch*> Candidates = Prefer(Matches, Number);
	if (Candidates.Num() < Number)
	{
		OutProblem = Candidates.IsEmpty() ? FString(TEXT("no widget shows it"))
										  : FString::Printf(TEXT("only %d of them are shown"), Candidates.Num());
		return nullptr;
	}
	for (int32 Index = Number - 1; Index < (Count ? Number : Candidates.Num()); ++Index)
	{
		if (IsInView(*Candidates[Index]))
		{
			return Candidates[Index];
		}
	}
	OutProblem = TEXT("it is out of view");
	return nullptr;
}
