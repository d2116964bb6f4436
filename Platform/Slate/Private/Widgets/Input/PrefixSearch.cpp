// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/Input/PrefixSearch.h"

#include "Containers/Ticker.h"

namespace
{
constexpr float SecondsToForget = 1.0f;
/** A row takes some microseconds to build. */
constexpr int32 MostReadsPerFrame = 512;
} // namespace

void FPrefixSearch::Type(TCHAR Character, int32 Highlighted, int32 InNumOptions)
{
	Prefix += Character;
	Sought = Prefix;
	FTSTicker::RemoveTicker(ForgetHandle);
	ForgetHandle = FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateSP(this, &FPrefixSearch::ForgetPrefix), SecondsToForget);

	NumOptions = InNumOptions;
	NumLeft = InNumOptions;
	FirstWithin = INDEX_NONE;
	// A first letter leaves the option it is typed at, further ones may keep it.
	Next = FMath::Max(0, Prefix.Len() == 1 ? Highlighted + 1 : Highlighted);
	if (Continue(0.0f) && !bContinuing)
	{
		bContinuing = true;
		FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateSP(this, &FPrefixSearch::Continue));
	}
}

void FPrefixSearch::Stop()
{
	Prefix.Empty();
	NumLeft = 0;
}

void FPrefixSearch::Reset()
{
	Stop();
	Texts.Empty();
}

bool FPrefixSearch::ForgetPrefix(float)
{
	Prefix.Empty();
	return false;
}

bool FPrefixSearch::Continue(float)
{
	const int32 MostTexts = Texts.Num() + MostReadsPerFrame;
	while (NumLeft > 0 && Texts.Num() < MostTexts)
	{
		const int32 Index = Next % NumOptions;
		Next = Index + 1;
		--NumLeft;
		Compare(Index);
	}
	bContinuing = bContinuing && NumLeft > 0;
	return NumLeft > 0;
}

void FPrefixSearch::Compare(int32 Index)
{
	const FString& Text = GetText(Index);
	const bool bBegins = Text.StartsWith(Sought);
	if (!bBegins && FirstWithin == INDEX_NONE && Text.Contains(TEXT(" ") + Sought))
	{
		FirstWithin = Index;
	}
	const int32 Found = bBegins ? Index : NumLeft == 0 ? FirstWithin : INDEX_NONE;
	if (Found != INDEX_NONE)
	{
		NumLeft = 0;
		OnFound.ExecuteIfBound(Found);
	}
}

const FString& FPrefixSearch::GetText(int32 Index)
{
	if (const FString* Known = Texts.Find(Index))
	{
		return *Known;
	}
	return Texts.Add(Index, ReadOption.IsBound() ? ReadOption.Execute(Index) : FString());
}
