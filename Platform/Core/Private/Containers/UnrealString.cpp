// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Containers/UnrealString.h"
#include "Containers/Array.h"
#include "Containers/StringConv.h"
#include "Misc/Char.h"

#include <algorithm>
#include <charconv>

FString::FString(const ANSICHAR* InString)
	: FString(FStringView(FUTF8ToTCHAR(InString)))
{
}

void FString::Empty(int32 Slack)
{
	std::u16string().swap(Data);
	Reserve(Slack);
}

void FString::AppendInt(int32 Number)
{
	ANSICHAR Digits[16];
	const auto Result = std::to_chars(std::begin(Digits), std::end(Digits), Number);
	Data.append(std::begin(Digits), Result.ptr);
}

void FString::InsertAt(int32 Index, FStringView Text)
{
	check(Index >= 0 && Index <= Len());
	Data.insert(static_cast<SIZE_T>(Index), Text.GetData(), static_cast<SIZE_T>(Text.Len()));
}

void FString::RemoveAt(int32 Index, int32 Count)
{
	check(Index >= 0 && Count >= 0 && Count <= Len() - Index);
	Data.erase(static_cast<SIZE_T>(Index), static_cast<SIZE_T>(Count));
}

bool FString::RemoveFromStart(FStringView Prefix, ESearchCase::Type SearchCase)
{
	const bool bRemove = StartsWith(Prefix, SearchCase);
	if (bRemove)
	{
		RemoveAt(0, Prefix.Len());
	}
	return bRemove;
}

bool FString::RemoveFromEnd(FStringView Suffix, ESearchCase::Type SearchCase)
{
	const bool bRemove = EndsWith(Suffix, SearchCase);
	if (bRemove)
	{
		RemoveAt(Len() - Suffix.Len(), Suffix.Len());
	}
	return bRemove;
}

FString FString::ToLower() const
{
	FString Result = *this;
	std::transform(Result.begin(), Result.end(), Result.begin(), FChar::ToLower);
	return Result;
}

FString FString::ToUpper() const
{
	FString Result = *this;
	std::transform(Result.begin(), Result.end(), Result.begin(), FChar::ToUpper);
	return Result;
}

int32 FString::Find(FStringView Search, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir, int32 StartPosition) const
{
	if (SearchDir == ESearchDir::FromStart)
	{
		return View().Find(Search, StartPosition, SearchCase);
	}
	return View().FindLast(Search, StartPosition == INDEX_NONE ? Len() : StartPosition, SearchCase);
}

FString FString::Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase) const
{
	FString Result = *this;
	Result.ReplaceInline(From, To, SearchCase);
	return Result;
}

int32 FString::ReplaceInline(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase)
{
	const FStringView Search(From);
	const FStringView Replacement(To);
	int32 Found = View().Find(Search, 0, SearchCase);
	if (Found == INDEX_NONE)
	{
		return 0;
	}

	FString Result;
	Result.Reserve(Len());
	int32 NumReplaced = 0;
	int32 CopiedTo = 0;
	for (; Found != INDEX_NONE; Found = View().Find(Search, CopiedTo, SearchCase))
	{
		Result += View().Mid(CopiedTo, Found - CopiedTo);
		Result += Replacement;
		CopiedTo = Found + Search.Len();
		++NumReplaced;
	}
	Result += View().RightChop(CopiedTo);
	*this = ::MoveTemp(Result);
	return NumReplaced;
}

bool FString::Split(
	FStringView Separator, FString* OutLeft, FString* OutRight, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir) const
{
	const int32 Found = Find(Separator, SearchCase, SearchDir);
	if (Found == INDEX_NONE)
	{
		return false;
	}
	// Either may be this very text.
	FString LeftPart = Left(Found);
	FString RightPart = RightChop(Found + Separator.Len());
	if (OutLeft)
	{
		*OutLeft = ::MoveTemp(LeftPart);
	}
	if (OutRight)
	{
		*OutRight = ::MoveTemp(RightPart);
	}
	return true;
}

static void AddPart(TArray<FString>& OutArray, FStringView Part, bool bCullEmpty)
{
	if (!Part.IsEmpty() || !bCullEmpty)
	{
		OutArray.Emplace(Part);
	}
}

int32 FString::ParseIntoArray(TArray<FString>& OutArray, const TCHAR* Delimiter, bool bCullEmpty) const
{
	const FStringView Separator(Delimiter);
	OutArray.Reset();
	int32 Start = 0;
	for (int32 Found = View().Find(Separator); Found != INDEX_NONE; Found = View().Find(Separator, Start))
	{
		AddPart(OutArray, View().Mid(Start, Found - Start), bCullEmpty);
		Start = Found + Separator.Len();
	}
	AddPart(OutArray, View().RightChop(Start), bCullEmpty);
	return OutArray.Num();
}

int32 FString::ParseIntoArrayLines(TArray<FString>& OutArray, bool bCullEmpty) const
{
	OutArray.Reset();
	int32 Start = 0;
	for (int32 Index = 0; Index < Len(); ++Index)
	{
		const bool bReturn = (*this)[Index] == TEXT('\r');
		if (!bReturn && (*this)[Index] != TEXT('\n'))
		{
			continue;
		}
		AddPart(OutArray, View().Mid(Start, Index - Start), bCullEmpty);
		if (bReturn && Index + 1 < Len() && (*this)[Index + 1] == TEXT('\n'))
		{
			++Index;
		}
		Start = Index + 1;
	}
	AddPart(OutArray, View().RightChop(Start), bCullEmpty);
	return OutArray.Num();
}

FString FString::Join(const TArray<FString>& Parts, const TCHAR* Separator)
{
	FString Result;
	for (int32 Index = 0; Index < Parts.Num(); ++Index)
	{
		Result += Index == 0 ? FStringView() : FStringView(Separator);
		Result += Parts[Index];
	}
	return Result;
}

FString FString::FromInt(int32 Number)
{
	FString Result;
	Result.AppendInt(Number);
	return Result;
}

FString FString::ChrN(int32 Count, TCHAR Character)
{
	FString Result;
	Result.Data.assign(static_cast<SIZE_T>(std::max(Count, 0)), Character);
	return Result;
}

FString& FString::PathAppend(FStringView Part)
{
	const bool bHasSlash = EndsWith(TEXT("/"));
	const bool bPartHasSlash = Part.StartsWith(TEXT("/"));
	if (!IsEmpty() && !Part.IsEmpty() && !bHasSlash && !bPartHasSlash)
	{
		AppendChar(TEXT('/'));
	}
	return Append(bHasSlash && bPartHasSlash ? Part.RightChop(1) : Part);
}
