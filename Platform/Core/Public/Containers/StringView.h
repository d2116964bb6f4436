// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Misc/AssertionMacros.h"
#include <string_view>

namespace ESearchCase
{
enum Type
{
	CaseSensitive,
	// Folds the letters A to Z alone, so that the result is the same in every culture.
	IgnoreCase
};
}

// A stretch of text owned by someone else. Compares ignoring case, as FString does.
class FStringView
{
public:
	constexpr FStringView() = default;

	constexpr FStringView(const TCHAR* InData)
		: View(InData ? std::u16string_view(InData) : std::u16string_view())
	{
	}

	constexpr FStringView(const TCHAR* InData, int32 InSize)
		: View(InData, static_cast<SIZE_T>(InSize))
	{
	}

	constexpr const TCHAR* GetData() const { return View.data(); }
	constexpr int32 Len() const { return static_cast<int32>(View.size()); }
	constexpr bool IsEmpty() const { return View.empty(); }

	const TCHAR& operator[](int32 Index) const
	{
		check(Index >= 0 && Index < Len());
		return View[static_cast<SIZE_T>(Index)];
	}

	// Positions and counts outside the text are clamped to it.
	FStringView Left(int32 CharCount) const;
	FStringView LeftChop(int32 CharCount) const;
	FStringView Right(int32 CharCount) const;
	FStringView RightChop(int32 CharCount) const;
	FStringView Mid(int32 Position, int32 CharCount = MAX_int32) const;

	void RemovePrefix(int32 CharCount) { *this = RightChop(CharCount); }

	FStringView TrimStart() const;
	FStringView TrimEnd() const;
	FStringView TrimStartAndEnd() const { return TrimStart().TrimEnd(); }

	bool Equals(FStringView Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const;
	// Negative, zero or positive.
	int32 Compare(FStringView Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const;
	bool StartsWith(FStringView Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	bool EndsWith(FStringView Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	bool Contains(FStringView Search, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		return Find(Search, 0, SearchCase) != INDEX_NONE;
	}

	// The first position at or after StartPosition, or INDEX_NONE. An empty text is found nowhere.
	int32 Find(FStringView Search, int32 StartPosition = 0, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	// The last position that starts before StartPosition.
	int32 FindLast(FStringView Search, int32 StartPosition = MAX_int32, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	bool FindChar(TCHAR Character, int32& OutIndex) const;
	bool FindLastChar(TCHAR Character, int32& OutIndex) const;

	constexpr const TCHAR* begin() const { return View.data(); }
	constexpr const TCHAR* end() const { return View.data() + View.size(); }

	friend bool operator==(FStringView Lhs, FStringView Rhs) { return Lhs.Equals(Rhs, ESearchCase::IgnoreCase); }
	friend bool operator<(FStringView Lhs, FStringView Rhs) { return Lhs.Compare(Rhs, ESearchCase::IgnoreCase) < 0; }

private:
	constexpr explicit FStringView(std::u16string_view InView)
		: View(InView)
	{
	}

	std::u16string_view View;
};

uint32 GetTypeHash(FStringView View);

#define TEXTVIEW(Literal) FStringView(TEXT(Literal), static_cast<int32>(sizeof(TEXT(Literal)) / sizeof(TCHAR)) - 1)
