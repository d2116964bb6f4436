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
