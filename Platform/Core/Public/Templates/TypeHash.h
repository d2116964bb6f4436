// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreTypes.h"
#include <bit>
#include <concepts>
#include <type_traits>

// Types of our own take part by a function GetTypeHash in their namespace.

inline uint32 HashCombine(uint32 Lhs, uint32 Rhs)
{
	return Lhs ^ (Rhs + 0x9e3779b9u + (Lhs << 6) + (Lhs >> 2));
}

template <typename T>
requires(std::is_integral_v<T> || std::is_enum_v<T>) uint32 GetTypeHash(T Value)
{
	const uint64 Bits = static_cast<uint64>(Value);
	return static_cast<uint32>(Bits) ^ static_cast<uint32>(Bits >> 32);
}

template <std::floating_point T>
uint32 GetTypeHash(T Value)
{
	// Both zeros are equal, so they hash alike.
	return Value == T(0) ? 0u : GetTypeHash(std::bit_cast<uint64>(static_cast<double>(Value)));
}

template <typename T>
uint32 GetTypeHash(T* Value)
{
	return GetTypeHash(reinterpret_cast<uintptr_t>(Value));
}
