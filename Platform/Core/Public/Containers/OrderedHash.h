// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"
#include <bit>
#include <optional>
#include <vector>

// What TMap and TSet are made of: elements in the order of adding, and chains of positions by hash. Removing leaves a gap, so the others
// keep their order; gaps are closed when more than half of the positions are empty, and only while adding.
template <typename ElementType, typename KeyOf>
class TOrderedHash
{
	struct FSlot
	{
		std::optional<ElementType> Element;
		uint32 Hash;
		int32 NextInChain;
	};

public:
	template <typename SlotType, typename ValueType>
	class TIterator
	{
	public:
		TIterator(SlotType* InSlot, SlotType* InEnd)
			: Slot(InSlot)
			, End(InEnd)
		{
			SkipGaps();
		}

		ValueType& operator*() const { return *Slot->Element; }
		ValueType* operator->() const { return &*Slot->Element; }

		TIterator& operator++()
		{
			++Slot;
			SkipGaps();
			return *this;
		}

		bool operator==(const TIterator& Other) const { return Slot == Other.Slot; }

	private:
		void SkipGaps()
		{
			while (Slot != End && !Slot->Element)
			{
				++Slot;
			}
		}

		SlotType* Slot;
		SlotType* End;
	};

	using FIterator = TIterator<FSlot, ElementType>;
	using FConstIterator = TIterator<const FSlot, const ElementType>;

	int32 Num() const { return NumElements; }

	template <typename KeyType>
	ElementType* Find(const KeyType& Key)
	{
		const int32 Index = FindIndex(Key);
		return Index == INDEX_NONE ? nullptr : &*Slots[static_cast<SIZE_T>(Index)].Element;
	}

	template <typename KeyType>
	const ElementType* Find(const KeyType& Key) const
	{
		return const_cast<TOrderedHash*>(this)->Find(Key);
	}

	// The key must not be there yet.
	ElementType& Add(ElementType&& Element);

	template <typename KeyType>
	bool Remove(const KeyType& Key);

	void Empty()
	{
		Slots.clear();
		Buckets.clear();
		NumElements = 0;
	}

	void Reserve(int32 Number);

	FIterator begin() { return {Slots.data(), Slots.data() + Slots.size()}; }
	FIterator end() { return {Slots.data() + Slots.size(), Slots.data() + Slots.size()}; }
	FConstIterator begin() const { return {Slots.data(), Slots.data() + Slots.size()}; }
	FConstIterator end() const { return {Slots.data() + Slots.size(), Slots.data() + Slots.size()}; }

private:
	template <typename KeyType>
	static uint32 HashOf(const KeyType& Key)
	{
		// Spreads hashes that differ in their high bits alone over the low ones, which choose the bucket.
		const uint32 Hash = GetTypeHash(Key) * 0x9e3779b1u;
		return Hash ^ (Hash >> 15);
	}

	int32& BucketOf(uint32 Hash) { return Buckets[Hash & (Buckets.size() - 1)]; }

	template <typename KeyType>
	int32 FindIndex(const KeyType& Key);

	void CloseGaps();
	void Rehash(SIZE_T NumBuckets);

	std::vector<FSlot> Slots;
	// Each holds the first position of its chain or INDEX_NONE; their number is a power of two.
	std::vector<int32> Buckets;
	int32 NumElements = 0;
};

template <typename ElementType, typename KeyOf>
ElementType& TOrderedHash<ElementType, KeyOf>::Add(ElementType&& Element)
{
	if (Slots.size() > 16 && Slots.size() > 2 * static_cast<SIZE_T>(NumElements))
	{
		CloseGaps();
	}
	if (Slots.size() >= Buckets.size())
	{
		Rehash(std::max<SIZE_T>(8, Buckets.size() * 2));
	}
	const uint32 Hash = HashOf(KeyOf()(Element));
	int32& Bucket = BucketOf(Hash);
	Slots.push_back({::MoveTemp(Element), Hash, Bucket});
	Bucket = static_cast<int32>(Slots.size()) - 1;
	++NumElements;
	return *Slots.back().Element;
}

template <typename ElementType, typename KeyOf>
template <typename KeyType>
bool TOrderedHash<ElementType, KeyOf>::Remove(const KeyType& Key)
{
	const int32 Index = FindIndex(Key);
	if (Index == INDEX_NONE)
	{
		return false;
	}
	FSlot& Removed = Slots[static_cast<SIZE_T>(Index)];
	int32* Link = &BucketOf(Removed.Hash);
	while (*Link != Index)
	{
		Link = &Slots[static_cast<SIZE_T>(*Link)].NextInChain;
	}
	*Link = Removed.NextInChain;
	--NumElements;
	// Last, since the element's destructor may ask this container.
	[[maybe_unused]] const std::optional<ElementType> Dying = std::exchange(Removed.Element, std::nullopt);
	return true;
}

template <typename ElementType, typename KeyOf>
void TOrderedHash<ElementType, KeyOf>::Reserve(int32 Number)
{
	Slots.reserve(static_cast<SIZE_T>(Number));
	const SIZE_T Wanted = std::bit_ceil(static_cast<SIZE_T>(Number));
	if (Wanted > Buckets.size())
	{
		Rehash(Wanted);
	}
}

template <typename ElementType, typename KeyOf>
template <typename KeyType>
int32 TOrderedHash<ElementType, KeyOf>::FindIndex(const KeyType& Key)
{
	if (NumElements == 0)
	{
		return INDEX_NONE;
	}
	const uint32 Hash = HashOf(Key);
	int32 Index = BucketOf(Hash);
	while (Index != INDEX_NONE)
	{
		const FSlot& Slot = Slots[static_cast<SIZE_T>(Index)];
		if (Slot.Hash == Hash && KeyOf()(*Slot.Element) == Key)
		{
			break;
		}
		Index = Slot.NextInChain;
	}
	return Index;
}

template <typename ElementType, typename KeyOf>
void TOrderedHash<ElementType, KeyOf>::CloseGaps()
{
	std::erase_if(Slots, [](const FSlot& Slot) { return !Slot.Element; });
	Rehash(Buckets.size());
}

template <typename ElementType, typename KeyOf>
void TOrderedHash<ElementType, KeyOf>::Rehash(SIZE_T NumBuckets)
{
	Buckets.assign(NumBuckets, INDEX_NONE);
	for (SIZE_T Index = 0; Index < Slots.size(); ++Index)
	{
		FSlot& Slot = Slots[Index];
		if (Slot.Element)
		{
			Slot.NextInChain = std::exchange(BucketOf(Slot.Hash), static_cast<int32>(Index));
		}
	}
}
