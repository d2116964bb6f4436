// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/Array.h"
#include "Containers/OrderedHash.h"
#include "Templates/Tuple.h"

// Iterates in the order of adding. Adding ends the validity of pointers to values.
template <typename KeyType, typename ValueType>
class TMap
{
public:
	using FPair = TPair<KeyType, ValueType>;

	TMap() = default;

	TMap(std::initializer_list<FPair> InList)
	{
		for (const FPair& Pair : InList)
		{
			Add(Pair.Key, Pair.Value);
		}
	}

	int32 Num() const { return Pairs.Num(); }
	bool IsEmpty() const { return Num() == 0; }
	void Empty(int32 Slack = 0)
	{
		Pairs.Empty();
		Pairs.Reserve(Slack);
	}
	void Reset() { Pairs.Empty(); }
	void Reserve(int32 Number) { Pairs.Reserve(Number); }

	// Replaces the value of a key that is there; the key keeps its place.
	ValueType& Add(KeyType Key, ValueType Value);
	ValueType& Add(KeyType Key) { return Add(::MoveTemp(Key), ValueType()); }
	template <typename... ArgTypes>
	ValueType& Emplace(KeyType Key, ArgTypes&&... Args)
	{
		return Add(::MoveTemp(Key), ValueType(::Forward<ArgTypes>(Args)...));
	}
	ValueType& FindOrAdd(KeyType Key);

	ValueType* Find(const KeyType& Key)
	{
		FPair* Pair = Pairs.Find(Key);
		return Pair ? &Pair->Value : nullptr;
	}
	const ValueType* Find(const KeyType& Key) const { return const_cast<TMap*>(this)->Find(Key); }
	// The value, or a default one.
	ValueType FindRef(const KeyType& Key) const
	{
		const ValueType* Value = Find(Key);
		return Value ? *Value : ValueType();
	}
	ValueType& FindChecked(const KeyType& Key)
	{
		ValueType* Pair = Find(Key);
		check(Pair != nullptr);
		return *Pair;
	}
	const ValueType& FindChecked(const KeyType& Key) const { return const_cast<TMap*>(this)->FindChecked(Key); }
	ValueType& operator[](const KeyType& Key) { return FindChecked(Key); }
	const ValueType& operator[](const KeyType& Key) const { return FindChecked(Key); }
	bool Contains(const KeyType& Key) const { return Find(Key) != nullptr; }
	// The first key, in the order of adding, that has this value.
	const KeyType* FindKey(const ValueType& Value) const;

	// The number of pairs removed: one or none.
	int32 Remove(const KeyType& Key) { return Pairs.Remove(Key) ? 1 : 0; }
	auto begin() { return Pairs.begin(); }
	auto end() { return Pairs.end(); }
	auto begin() const { return Pairs.begin(); }
	auto end() const { return Pairs.end(); }

private:
	struct FKeyOf
	{
		const KeyType& operator()(const FPair& Pair) const { return Pair.Key; }
	};

	TOrderedHash<FPair, FKeyOf> Pairs;
};

template <typename KeyType, typename ValueType>
ValueType& TMap<KeyType, ValueType>::Add(KeyType Key, ValueType Value)
{
	if (ValueType* Existing = Find(Key))
	{
		*Existing = ::MoveTemp(Value);
		return *Existing;
	}
	return Pairs.Add({::MoveTemp(Key), ::MoveTemp(Value)}).Value;
}

template <typename KeyType, typename ValueType>
ValueType& TMap<KeyType, ValueType>::FindOrAdd(KeyType Key)
{
	ValueType* Existing = Find(Key);
	return Existing ? *Existing : Pairs.Add({::MoveTemp(Key), ValueType()}).Value;
}

template <typename KeyType, typename ValueType>
const KeyType* TMap<KeyType, ValueType>::FindKey(const ValueType& Value) const
{
	for (const FPair& Pair : *this)
	{
		if (Pair.Value == Value)
		{
			return &Pair.Key;
		}
	}
	return nullptr;
}
