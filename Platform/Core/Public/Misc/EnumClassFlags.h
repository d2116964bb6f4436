// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <type_traits>

// The bit operators for an enumeration of flags.
#define ENUM_CLASS_FLAGS(Enum)                                                                                                             \
	inline constexpr Enum operator|(Enum Lhs, Enum Rhs)                                                                                    \
	{                                                                                                                                      \
		return static_cast<Enum>(static_cast<std::underlying_type_t<Enum>>(Lhs) | static_cast<std::underlying_type_t<Enum>>(Rhs));         \
	}                                                                                                                                      \
	inline constexpr Enum operator&(Enum Lhs, Enum Rhs)                                                                                    \
	{                                                                                                                                      \
		return static_cast<Enum>(static_cast<std::underlying_type_t<Enum>>(Lhs) & static_cast<std::underlying_type_t<Enum>>(Rhs));         \
	}                                                                                                                                      \
	inline constexpr Enum operator~(Enum Value)                                                                                            \
	{                                                                                                                                      \
		return static_cast<Enum>(~static_cast<std::underlying_type_t<Enum>>(Value));                                                       \
	}                                                                                                                                      \
	inline Enum& operator|=(Enum& Lhs, Enum Rhs)                                                                                           \
	{                                                                                                                                      \
		return Lhs = Lhs | Rhs;                                                                                                            \
	}                                                                                                                                      \
	inline Enum& operator&=(Enum& Lhs, Enum Rhs)                                                                                           \
	{                                                                                                                                      \
		return Lhs = Lhs & Rhs;                                                                                                            \
	}

template <typename Enum>
constexpr bool EnumHasAnyFlags(Enum Flags, Enum Contains)
{
	using Bits = std::underlying_type_t<Enum>;
	return (static_cast<Bits>(Flags) & static_cast<Bits>(Contains)) != 0;
}

template <typename Enum>
constexpr bool EnumHasAllFlags(Enum Flags, Enum Contains)
{
	using Bits = std::underlying_type_t<Enum>;
	return (static_cast<Bits>(Flags) & static_cast<Bits>(Contains)) == static_cast<Bits>(Contains);
}
