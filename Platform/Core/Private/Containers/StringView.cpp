// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Containers/StringView.h"
#include "Misc/Char.h"

#include <algorithm>

static constexpr TCHAR Fold(TCHAR Character)
{
	return Character >= TEXT('A') && Character <= TEXT('Z') ? static_cast<TCHAR>(Character + (TEXT('a') - TEXT('A'))) : Character;
}

static bool AreEqual(const TCHAR* Lhs, const TCHAR* Rhs, int32 Length, ESearchCase::Type SearchCase)
{
	if (SearchCase == ESearchCase::CaseSensitive)
	{
		return std::equal(Lhs, Lhs + Length, Rhs);
	}
	return std::equal(Lhs, Lhs + Length, Rhs, [](TCHAR A, TCHAR B) { return A == B || Fold(A) == Fold(B); });
}

FStringView FStringView::Left(int32 CharCount) const
{
	return FStringView(GetData(), std::clamp(CharCount, 0, Len()));
}

FStringView FStringView::LeftChop(int32 CharCount) const
{
	return Left(Len() - std::clamp(CharCount, 0, Len()));
}

FStringView FStringView::Right(int32 CharCount) const
{
	return RightChop(Len() - std::clamp(CharCount, 0, Len()));
}

FStringView FStringView::RightChop(int32 CharCount) const
{
	const int32 Count = std::clamp(CharCount, 0, Len());
	return FStringView(GetData() + Count, Len() - Count);
}

FStringView FStringView::Mid(int32 Position, int32 CharCount) const
{
	return RightChop(Position).Left(CharCount);
}

FStringView FStringView::TrimStart() const
{
	const TCHAR* First = std::find_if_not(begin(), end(), FChar::IsWhitespace);
	return RightChop(static_cast<int32>(First - begin()));
}

FStringView FStringView::TrimEnd() const
{
	int32 Length = Len();
	while (Length > 0 && FChar::IsWhitespace((*this)[Length - 1]))
	{
		--Length;
	}
	return Left(Length);
}

bool FStringView::Equals(FStringView Other, ESearchCase::Type SearchCase) const
{
	return Len() == Other.Len() && AreEqual(GetData(), Other.GetData(), Len(), SearchCase);
}

int32 FStringView::Compare(FStringView Other, ESearchCase::Type SearchCase) const
{
	const int32 Common = std::min(Len(), Other.Len());
	const bool bFold = SearchCase == ESearchCase::IgnoreCase;
	for (int32 Index = 0; Index < Common; ++Index)
	{
		const TCHAR A = bFold ? Fold(View[static_cast<SIZE_T>(Index)]) : View[static_cast<SIZE_T>(Index)];
		const TCHAR B = bFold ? Fold(Other.View[static_cast<SIZE_T>(Index)]) : Other.View[static_cast<SIZE_T>(Index)];
		if (A != B)
		{
			return A < B ? -1 : 1;
		}
	}
	return Len() == Other.Len() ? 0 : (Len() < Other.Len() ? -1 : 1);
}

bool FStringView::StartsWith(FStringView Prefix, ESearchCase::Type SearchCase) const
{
	return !Prefix.IsEmpty() && Prefix.Len() <= Len() && AreEqual(GetData(), Prefix.GetData(), Prefix.Len(), SearchCase);
}

bool FStringView::EndsWith(FStringView Suffix, ESearchCase::Type SearchCase) const
{
	return !Suffix.IsEmpty() && Right(Suffix.Len()).Equals(Suffix, SearchCase);
}

int32 FStringView::Find(FStringView Search, int32 StartPosition, ESearchCase::Type SearchCase) const
{
	const int32 Start = std::clamp(StartPosition, 0, Len());
	if (Search.IsEmpty())
	{
		return INDEX_NONE;
	}
	if (SearchCase == ESearchCase::CaseSensitive)
	{
		const SIZE_T Found = View.find(Search.View, static_cast<SIZE_T>(Start));
		return Found == std::u16string_view::npos ? INDEX_NONE : static_cast<int32>(Found);
	}
	const TCHAR First = Fold(Search.View.front());
	const int32 LastStart = Len() - Search.Len();
	for (int32 Index = Start; Index <= LastStart; ++Index)
	{
		if (Fold(View[static_cast<SIZE_T>(Index)]) == First && AreEqual(GetData() + Index, Search.GetData(), Search.Len(), SearchCase))
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

int32 FStringView::FindLast(FStringView Search, int32 StartPosition, ESearchCase::Type SearchCase) const
{
	if (Search.IsEmpty())
	{
		return INDEX_NONE;
	}
	int32 Index = std::min(std::clamp(StartPosition, 0, Len()) - 1, Len() - Search.Len());
	while (Index >= 0 && !AreEqual(GetData() + Index, Search.GetData(), Search.Len(), SearchCase))
	{
		--Index;
	}
	return std::max(Index, INDEX_NONE);
}

bool FStringView::FindChar(TCHAR Character, int32& OutIndex) const
{
	const SIZE_T Found = View.find(Character);
	OutIndex = Found == std::u16string_view::npos ? INDEX_NONE : static_cast<int32>(Found);
	return OutIndex != INDEX_NONE;
}

bool FStringView::FindLastChar(TCHAR Character, int32& OutIndex) const
{
	const SIZE_T Found = View.rfind(Character);
	OutIndex = Found == std::u16string_view::npos ? INDEX_NONE : static_cast<int32>(Found);
	return OutIndex != INDEX_NONE;
}

uint32 GetTypeHash(FStringView View)
{
	uint32 Hash = 2166136261u;
	for (const TCHAR Character : View)
	{
		Hash = (Hash ^ Fold(Character)) * 16777619u;
	}
	return Hash;
}
