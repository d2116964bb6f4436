// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/StringView.h"
#include "Misc/VarArgs.h"
#include "Templates/UnrealTemplate.h"
#include <string>

template <typename ElementType>
class TArray;

namespace ESearchDir
{
enum Type
{
	FromStart,
	FromEnd
};
}

// A text of UTF-16 units. Comparing, hashing, searching and replacing ignore case unless asked otherwise.
class FString
{
public:
	FString() = default;

	FString(const TCHAR* InString)
		: FString(FStringView(InString))
	{
	}

	explicit FString(FStringView InView)
		: Data(InView.GetData(), static_cast<SIZE_T>(InView.Len()))
	{
	}

	FString(int32 Len, const TCHAR* InString)
		: FString(FStringView(InString, Len))
	{
	}

	// Reads UTF-8.
	explicit FString(const ANSICHAR* InString);

	int32 Len() const { return static_cast<int32>(Data.size()); }
	bool IsEmpty() const { return Data.empty(); }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Len(); }

	// Ends with a zero, which Len does not count.
	const TCHAR* operator*() const { return Data.c_str(); }
	const TCHAR* GetData() const { return Data.data(); }
	TCHAR* GetData() { return Data.data(); }
	operator FStringView() const { return FStringView(Data.data(), Len()); }

	const TCHAR& operator[](int32 Index) const
	{
		CheckIndex(Index);
		return Data[static_cast<SIZE_T>(Index)];
	}

	TCHAR& operator[](int32 Index)
	{
		CheckIndex(Index);
		return Data[static_cast<SIZE_T>(Index)];
	}

	void Empty(int32 Slack = 0);
	// Empties the text and keeps its memory.
	void Reset() { Data.clear(); }
	void Reserve(int32 CharacterCount) { Data.reserve(static_cast<SIZE_T>(CharacterCount)); }

	FString& Append(FStringView Text)
	{
		Data.append(Text.GetData(), static_cast<SIZE_T>(Text.Len()));
		return *this;
	}

	FString& AppendChar(TCHAR Character)
	{
		Data.push_back(Character);
		return *this;
	}

	FString& operator+=(FStringView Text) { return Append(Text); }
	FString& operator+=(TCHAR Character) { return AppendChar(Character); }
	void AppendInt(int32 Number);

	void InsertAt(int32 Index, FStringView Text);
	void RemoveAt(int32 Index, int32 Count = 1);
	bool RemoveFromStart(FStringView Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	bool RemoveFromEnd(FStringView Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);

	FString Left(int32 Count) const { return FString(View().Left(Count)); }
	FString LeftChop(int32 Count) const { return FString(View().LeftChop(Count)); }
	FString Right(int32 Count) const { return FString(View().Right(Count)); }
	FString RightChop(int32 Count) const { return FString(View().RightChop(Count)); }
	FString Mid(int32 Start, int32 Count = MAX_int32) const { return FString(View().Mid(Start, Count)); }

	FString TrimStart() const { return FString(View().TrimStart()); }
	FString TrimEnd() const { return FString(View().TrimEnd()); }
	FString TrimStartAndEnd() const { return FString(View().TrimStartAndEnd()); }
	FString ToLower() const;
	FString ToUpper() const;

	bool Equals(const FString& Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const
	{
		return View().Equals(Other, SearchCase);
	}

	int32 Compare(const FString& Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const
	{
		return View().Compare(Other, SearchCase);
	}

	bool StartsWith(FStringView Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		return View().StartsWith(Prefix, SearchCase);
	}

	bool EndsWith(FStringView Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		return View().EndsWith(Suffix, SearchCase);
	}

	bool Contains(FStringView Search, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		return View().Contains(Search, SearchCase);
	}

	// From the end, StartPosition is the position before which a match must begin.
	int32 Find(FStringView Search, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart, int32 StartPosition = INDEX_NONE) const;
	bool FindChar(TCHAR Character, int32& OutIndex) const { return View().FindChar(Character, OutIndex); }
	bool FindLastChar(TCHAR Character, int32& OutIndex) const { return View().FindLastChar(Character, OutIndex); }

	FString Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	// The number of replacements made.
	int32 ReplaceInline(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);

	// Cuts at the first (from the end: the last) separator. False, and both parts untouched, where there is none.
	bool Split(FStringView Separator, FString* OutLeft, FString* OutRight, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart) const;
	int32 ParseIntoArray(TArray<FString>& OutArray, const TCHAR* Delimiter, bool bCullEmpty = true) const;
	// Lines end at "\r\n", "\n" or "\r".
	int32 ParseIntoArrayLines(TArray<FString>& OutArray, bool bCullEmpty = true) const;
	static FString Join(const TArray<FString>& Parts, const TCHAR* Separator);

	// The format of the C library's printf; %s takes a TCHAR string, %hs one of ANSICHARs.
	template <typename... Types>
	static FString Printf(const TCHAR* Format, Types... Arguments)
	{
		return PrintfImpl(Format, {FVarArg(Arguments)...});
	}

	template <typename... Types>
	FString& Appendf(const TCHAR* Format, Types... Arguments)
	{
		return Append(PrintfImpl(Format, {FVarArg(Arguments)...}));
	}

	static FString PrintfImpl(const TCHAR* Format, FVarArgs Arguments);

	static FString FromInt(int32 Number);
	static FString Chr(TCHAR Character) { return FString(1, &Character); }
	static FString ChrN(int32 Count, TCHAR Character);

	const TCHAR* begin() const { return Data.data(); }
	const TCHAR* end() const { return Data.data() + Data.size(); }
	TCHAR* begin() { return Data.data(); }
	TCHAR* end() { return Data.data() + Data.size(); }

	friend bool operator==(const FString& Lhs, const FString& Rhs) { return Lhs.View().Equals(Rhs, ESearchCase::IgnoreCase); }
	friend bool operator==(const FString& Lhs, const TCHAR* Rhs) { return Lhs.View().Equals(Rhs, ESearchCase::IgnoreCase); }
	friend bool operator<(const FString& Lhs, const FString& Rhs) { return Lhs.View().Compare(Rhs, ESearchCase::IgnoreCase) < 0; }

	friend FString operator+(FString Lhs, FStringView Rhs) { return ::MoveTemp(Lhs.Append(Rhs)); }
	friend FString operator+(FString Lhs, TCHAR Rhs) { return ::MoveTemp(Lhs.AppendChar(Rhs)); }
	friend FString operator+(const TCHAR* Lhs, const FString& Rhs) { return ::MoveTemp(FString(Lhs).Append(Rhs)); }

	// Joins two parts of a path by exactly one slash.
	friend FString operator/(FString Lhs, FStringView Rhs) { return ::MoveTemp(Lhs.PathAppend(Rhs)); }

private:
	FStringView View() const { return *this; }
	FString& PathAppend(FStringView Part);
	void CheckIndex(int32 Index) const
	{
		checkf(IsValidIndex(Index), TEXT("String index out of bounds: Index %i from a string with a length of %i"), Index, Len());
	}

	std::u16string Data;
};

inline uint32 GetTypeHash(const FString& String)
{
	return GetTypeHash(FStringView(String));
}
