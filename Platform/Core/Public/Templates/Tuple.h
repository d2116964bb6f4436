// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Templates/TypeHash.h"

template <typename InKeyType, typename InValueType>
struct TPair
{
	using KeyType = InKeyType;
	using ValueType = InValueType;

	InKeyType Key{};
	InValueType Value{};

	friend bool operator==(const TPair& Lhs, const TPair& Rhs) { return Lhs.Key == Rhs.Key && Lhs.Value == Rhs.Value; }
};

template <typename KeyType, typename ValueType>
uint32 GetTypeHash(const TPair<KeyType, ValueType>& Pair)
{
	return HashCombine(GetTypeHash(Pair.Key), GetTypeHash(Pair.Value));
}
