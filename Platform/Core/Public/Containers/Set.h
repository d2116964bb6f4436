// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/Array.h"
#include "Containers/OrderedHash.h"

// Iterates in the order of adding.
template <typename ElementType>
class TSet
{
public:
	TSet() = default;

	TSet(std::initializer_list<ElementType> InList)
	{
		for (const ElementType& Element : InList)
		{
			Add(Element);
		}
	}

	int32 Num() const { return Elements.Num(); }
	bool IsEmpty() const { return Num() == 0; }
	void Empty() { Elements.Empty(); }
	void Reset() { Elements.Empty(); }
	void Reserve(int32 Number) { Elements.Reserve(Number); }

	void Add(ElementType Element, bool* bIsAlreadyInSet = nullptr)
	{
		const bool bContained = Contains(Element);
		if (!bContained)
		{
			Elements.Add(::MoveTemp(Element));
		}
		if (bIsAlreadyInSet)
		{
			*bIsAlreadyInSet = bContained;
		}
	}

	bool Contains(const ElementType& Element) const { return Elements.Find(Element) != nullptr; }
	const ElementType* Find(const ElementType& Element) const { return Elements.Find(Element); }
	int32 Remove(const ElementType& Element) { return Elements.Remove(Element) ? 1 : 0; }

	TArray<ElementType> Array() const
	{
		TArray<ElementType> Result;
		Result.Reserve(Num());
		for (const ElementType& Element : *this)
		{
			Result.Add(Element);
		}
		return Result;
	}

	// An element can't be changed in place, since its hash would change with it.
	auto begin() const { return Elements.begin(); }
	auto end() const { return Elements.end(); }

private:
	struct FKeyOf
	{
		const ElementType& operator()(const ElementType& Element) const { return Element; }
	};

	TOrderedHash<ElementType, FKeyOf> Elements;
};
