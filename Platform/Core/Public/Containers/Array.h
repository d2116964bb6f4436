// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Misc/AssertionMacros.h"
#include "Templates/UnrealTemplate.h"
#include <algorithm>
#include <functional>
#include <initializer_list>
#include <vector>

template <typename ElementType>
class TArray
{
	static_assert(!std::is_same_v<ElementType, bool>, "An array of bits has no references to its elements; use TArray<uint8>.");

public:
	TArray() = default;

	TArray(std::initializer_list<ElementType> InList)
		: Elements(InList)
	{
	}

	TArray(const ElementType* Ptr, int32 Count)
		: Elements(Ptr, Ptr + Count)
	{
	}

	int32 Num() const { return static_cast<int32>(Elements.size()); }
	int32 Max() const { return static_cast<int32>(Elements.capacity()); }
	bool IsEmpty() const { return Elements.empty(); }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Num(); }

	const ElementType* GetData() const { return Elements.data(); }
	ElementType* GetData() { return Elements.data(); }

	const ElementType& operator[](int32 Index) const
	{
		RangeCheck(Index);
		return Elements[static_cast<SIZE_T>(Index)];
	}

	ElementType& operator[](int32 Index)
	{
		RangeCheck(Index);
		return Elements[static_cast<SIZE_T>(Index)];
	}

	const ElementType& Last(int32 IndexFromTheEnd = 0) const { return (*this)[Num() - IndexFromTheEnd - 1]; }
	ElementType& Last(int32 IndexFromTheEnd = 0) { return (*this)[Num() - IndexFromTheEnd - 1]; }
	const ElementType& Top() const { return Last(); }
	ElementType& Top() { return Last(); }

	int32 Add(const ElementType& Item) { return Emplace(Item); }
	int32 Add(ElementType&& Item) { return Emplace(::MoveTemp(Item)); }
	ElementType& Add_GetRef(const ElementType& Item) { return Emplace_GetRef(Item); }
	ElementType& Add_GetRef(ElementType&& Item) { return Emplace_GetRef(::MoveTemp(Item)); }
	int32 AddDefaulted(int32 Count = 1);
	ElementType& AddDefaulted_GetRef() { return Emplace_GetRef(); }
	int32 AddUnique(const ElementType& Item);

	template <typename... ArgTypes>
	int32 Emplace(ArgTypes&&... Args)
	{
		Emplace_GetRef(::Forward<ArgTypes>(Args)...);
		return Num() - 1;
	}

	template <typename... ArgTypes>
	ElementType& Emplace_GetRef(ArgTypes&&... Args);

	void Push(const ElementType& Item) { Add(Item); }
	void Push(ElementType&& Item) { Add(::MoveTemp(Item)); }
	ElementType Pop();

	void Append(const TArray& Source);
	void Append(TArray&& Source);
	void Append(const ElementType* Ptr, int32 Count) { Elements.insert(Elements.end(), Ptr, Ptr + Count); }
	TArray& operator+=(const TArray& Source)
	{
		Append(Source);
		return *this;
	}

	int32 Insert(const ElementType& Item, int32 Index);
	int32 Insert(ElementType&& Item, int32 Index);

	void RemoveAt(int32 Index, int32 Count = 1);
	// Removes all that are equal and returns their number.
	int32 Remove(const ElementType& Item);
	template <typename PredicateType>
	int32 RemoveAll(const PredicateType& Predicate);

	void Empty(int32 Slack = 0);
	// Empties the array and keeps its memory.
	void Reset(int32 NewSize = 0);
	void Reserve(int32 Number)
	{
		check(Number >= 0);
		Elements.reserve(static_cast<SIZE_T>(Number));
	}
	void SetNum(int32 NewNum)
	{
		check(NewNum >= 0);
		Elements.resize(static_cast<SIZE_T>(NewNum));
	}
	void Init(const ElementType& Element, int32 Number) { Elements.assign(static_cast<SIZE_T>(Number), Element); }
	void Swap(int32 FirstIndex, int32 SecondIndex) { ::Swap((*this)[FirstIndex], (*this)[SecondIndex]); }

	// Positions are INDEX_NONE, and pointers null, where nothing is found.
	int32 Find(const ElementType& Item) const;
	bool Find(const ElementType& Item, int32& OutIndex) const;
	int32 FindLast(const ElementType& Item) const;
	bool Contains(const ElementType& Item) const { return Find(Item) != INDEX_NONE; }

	template <typename PredicateType>
	int32 IndexOfByPredicate(PredicateType Predicate) const;
	template <typename PredicateType>
	bool ContainsByPredicate(PredicateType Predicate) const
	{
		return IndexOfByPredicate(Predicate) != INDEX_NONE;
	}
	template <typename PredicateType>
	const ElementType* FindByPredicate(PredicateType Predicate) const;
	template <typename PredicateType>
	ElementType* FindByPredicate(PredicateType Predicate)
	{
		return const_cast<ElementType*>(std::as_const(*this).FindByPredicate(Predicate));
	}
	template <typename PredicateType>
	TArray FilterByPredicate(PredicateType Predicate) const;

	void Sort()
	{
		std::sort(Elements.begin(), Elements.end(), [](const auto& Lhs, const auto& Rhs) { return Lhs < Rhs; });
	}
	template <typename PredicateType>
	void Sort(const PredicateType& Predicate)
	{
		std::sort(Elements.begin(), Elements.end(), Predicate);
	}
	template <typename PredicateType>
	void StableSort(const PredicateType& Predicate)
	{
		std::stable_sort(Elements.begin(), Elements.end(), Predicate);
	}

	// Adding or removing elements ends the validity of iterators.
	auto begin() const { return Elements.data(); }
	auto end() const { return Elements.data() + Elements.size(); }
	auto begin() { return Elements.data(); }
	auto end() { return Elements.data() + Elements.size(); }

	friend bool operator==(const TArray& Lhs, const TArray& Rhs) { return Lhs.Elements == Rhs.Elements; }

private:
	void RangeCheck(int32 Index) const
	{
		checkf(IsValidIndex(Index), TEXT("Array index out of bounds: %i into an array of size %i"), Index, Num());
	}

	std::vector<ElementType> Elements;
};

template <typename ElementType>
int32 TArray<ElementType>::AddDefaulted(int32 Count)
{
	const int32 Index = Num();
	Elements.resize(Elements.size() + static_cast<SIZE_T>(Count));
	return Index;
}

template <typename ElementType>
int32 TArray<ElementType>::AddUnique(const ElementType& Item)
{
	const int32 Index = Find(Item);
	return Index != INDEX_NONE ? Index : Add(Item);
}

template <typename ElementType>
template <typename... ArgTypes>
ElementType& TArray<ElementType>::Emplace_GetRef(ArgTypes&&... Args)
{
	if constexpr (std::is_constructible_v<ElementType, ArgTypes...>)
	{
		return Elements.emplace_back(::Forward<ArgTypes>(Args)...);
	}
	else
	{
		// A plain record without constructor.
		Elements.push_back(ElementType{::Forward<ArgTypes>(Args)...});
		return Elements.back();
	}
}

template <typename ElementType>
ElementType TArray<ElementType>::Pop()
{
	ElementType Result = ::MoveTemp(Last());
	Elements.pop_back();
	return Result;
}

template <typename ElementType>
void TArray<ElementType>::Append(const TArray& Source)
{
	check(&Source != this);
	Elements.insert(Elements.end(), Source.Elements.begin(), Source.Elements.end());
}

template <typename ElementType>
void TArray<ElementType>::Append(TArray&& Source)
{
	check(&Source != this);
	Elements.insert(Elements.end(), std::make_move_iterator(Source.Elements.begin()), std::make_move_iterator(Source.Elements.end()));
	Source.Elements.clear();
}

template <typename ElementType>
int32 TArray<ElementType>::Insert(const ElementType& Item, int32 Index)
{
	check(Index >= 0 && Index <= Num());
	Elements.insert(Elements.begin() + Index, Item);
	return Index;
}

template <typename ElementType>
int32 TArray<ElementType>::Insert(ElementType&& Item, int32 Index)
{
	check(Index >= 0 && Index <= Num());
	Elements.insert(Elements.begin() + Index, ::MoveTemp(Item));
	return Index;
}

template <typename ElementType>
void TArray<ElementType>::RemoveAt(int32 Index, int32 Count)
{
	check(Index >= 0 && Count >= 0 && Count <= Num() - Index);
	Elements.erase(Elements.begin() + Index, Elements.begin() + Index + Count);
}

template <typename ElementType>
int32 TArray<ElementType>::Remove(const ElementType& Item)
{
	// The item may be an element of this array, which removing moves.
	const ElementType Kept = Item;
	return RemoveAll([&Kept](const ElementType& Element) { return Element == Kept; });
}

template <typename ElementType>
template <typename PredicateType>
int32 TArray<ElementType>::RemoveAll(const PredicateType& Predicate)
{
	return static_cast<int32>(std::erase_if(Elements, Predicate));
}

template <typename ElementType>
void TArray<ElementType>::Empty(int32 Slack)
{
	std::vector<ElementType>().swap(Elements);
	Reserve(Slack);
}

template <typename ElementType>
void TArray<ElementType>::Reset(int32 NewSize)
{
	Elements.clear();
	Reserve(NewSize);
}

template <typename ElementType>
int32 TArray<ElementType>::Find(const ElementType& Item) const
{
	return IndexOfByPredicate([&Item](const ElementType& Element) { return Element == Item; });
}

template <typename ElementType>
bool TArray<ElementType>::Find(const ElementType& Item, int32& OutIndex) const
{
	OutIndex = Find(Item);
	return OutIndex != INDEX_NONE;
}

template <typename ElementType>
int32 TArray<ElementType>::FindLast(const ElementType& Item) const
{
	int32 Index = Num() - 1;
	while (Index >= 0 && !((*this)[Index] == Item))
	{
		--Index;
	}
	return Index;
}

template <typename ElementType>
template <typename PredicateType>
int32 TArray<ElementType>::IndexOfByPredicate(PredicateType Predicate) const
{
	const auto Found = std::find_if(Elements.begin(), Elements.end(), std::ref(Predicate));
	return Found == Elements.end() ? INDEX_NONE : static_cast<int32>(Found - Elements.begin());
}

template <typename ElementType>
template <typename PredicateType>
const ElementType* TArray<ElementType>::FindByPredicate(PredicateType Predicate) const
{
	const int32 Index = IndexOfByPredicate(::MoveTemp(Predicate));
	return Index == INDEX_NONE ? nullptr : &Elements[static_cast<SIZE_T>(Index)];
}

template <typename ElementType>
template <typename PredicateType>
TArray<ElementType> TArray<ElementType>::FilterByPredicate(PredicateType Predicate) const
{
	TArray Result;
	std::copy_if(Elements.begin(), Elements.end(), std::back_inserter(Result.Elements), std::ref(Predicate));
	return Result;
}
