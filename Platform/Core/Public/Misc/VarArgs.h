// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreTypes.h"
#include <initializer_list>
#include <type_traits>

// One argument of a printf-like call, with its type, so that a format that does not fit is found instead of read as garbage.
struct FVarArg
{
	enum class EType : uint8
	{
		Signed,
		Unsigned,
		Float,
		WideString,
		AnsiString,
		Pointer
	};

	template <typename T>
	FVarArg(T InValue)
	{
		static_assert(std::is_arithmetic_v<T> || std::is_enum_v<T> || std::is_pointer_v<T> || std::is_null_pointer_v<T>,
			"Only numbers, enumerators and pointers can be printed; pass a string as *String.");
		if constexpr (std::is_enum_v<T>)
		{
			SetNumber(static_cast<std::underlying_type_t<T>>(InValue));
		}
		else if constexpr (std::is_arithmetic_v<T>)
		{
			SetNumber(InValue);
		}
		else
		{
			SetPointer(InValue);
		}
	}

	EType Type;
	uint8 Size = 8;

	union
	{
		int64 Signed;
		uint64 Unsigned;
		double Float;
		const TCHAR* WideString;
		const ANSICHAR* AnsiString;
		const void* Pointer;
	};

private:
	template <typename T>
	void SetNumber(T InValue)
	{
		Size = sizeof(T);
		if constexpr (std::is_floating_point_v<T>)
		{
			Type = EType::Float;
			Float = static_cast<double>(InValue);
		}
		else if constexpr (std::is_signed_v<T>)
		{
			Type = EType::Signed;
			Signed = static_cast<int64>(InValue);
		}
		else
		{
			Type = EType::Unsigned;
			Unsigned = static_cast<uint64>(InValue);
		}
	}

	void SetPointer(const TCHAR* InValue)
	{
		Type = EType::WideString;
		WideString = InValue;
	}

	void SetPointer(const ANSICHAR* InValue)
	{
		Type = EType::AnsiString;
		AnsiString = InValue;
	}

	void SetPointer(const void* InValue)
	{
		Type = EType::Pointer;
		Pointer = InValue;
	}

	void SetPointer(std::nullptr_t) { SetPointer(static_cast<const void*>(nullptr)); }
};

// The arguments of one call; lives no longer than the call.
using FVarArgs = std::initializer_list<FVarArg>;
