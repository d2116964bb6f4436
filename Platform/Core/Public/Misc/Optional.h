// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Misc/AssertionMacros.h"
#include "Templates/UnrealTemplate.h"
#include <optional>

inline constexpr std::nullopt_t NullOpt = std::nullopt;

// A value that may be missing. Reading a missing one stops.
template <typename OptionalType>
class TOptional
{
public:
	TOptional() = default;
	TOptional(std::nullopt_t) {}

	TOptional(const OptionalType& InValue)
		: Value(InValue)
	{
	}

	TOptional(OptionalType&& InValue)
		: Value(::MoveTemp(InValue))
	{
	}

	bool IsSet() const { return Value.has_value(); }
	explicit operator bool() const { return IsSet(); }

	const OptionalType& GetValue() const
	{
		check(IsSet());
		return *Value;
	}

	OptionalType& GetValue()
	{
		check(IsSet());
		return *Value;
	}

	const OptionalType& Get(const OptionalType& DefaultValue) const { return IsSet() ? *Value : DefaultValue; }

	const OptionalType* GetPtrOrNull() const { return IsSet() ? &*Value : nullptr; }
	OptionalType* GetPtrOrNull() { return IsSet() ? &*Value : nullptr; }

	const OptionalType& operator*() const { return GetValue(); }
	OptionalType& operator*() { return GetValue(); }
	const OptionalType* operator->() const { return &GetValue(); }
	OptionalType* operator->() { return &GetValue(); }

	template <typename... ArgTypes>
	OptionalType& Emplace(ArgTypes&&... Args)
	{
		return Value.emplace(::Forward<ArgTypes>(Args)...);
	}

	void Reset() { Value.reset(); }

	friend bool operator==(const TOptional& Lhs, const TOptional& Rhs) { return Lhs.Value == Rhs.Value; }

private:
	std::optional<OptionalType> Value;
};
