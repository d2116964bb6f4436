// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <type_traits>
#include <utility>

template <typename T>
constexpr std::remove_reference_t<T>&& MoveTemp(T&& Object) noexcept
{
	static_assert(std::is_lvalue_reference_v<T>, "MoveTemp of something that is temporary already");
	static_assert(!std::is_const_v<std::remove_reference_t<T>>, "MoveTemp of a constant would copy it");
	return static_cast<std::remove_reference_t<T>&&>(Object);
}

template <typename T>
constexpr T&& Forward(std::remove_reference_t<T>& Object) noexcept
{
	return static_cast<T&&>(Object);
}

template <typename T>
constexpr T&& Forward(std::remove_reference_t<T>&& Object) noexcept
{
	return static_cast<T&&>(Object);
}

template <typename T>
void Swap(T& Lhs, T& Rhs)
{
	T Kept = MoveTemp(Lhs);
	Lhs = MoveTemp(Rhs);
	Rhs = MoveTemp(Kept);
}

// Sets a variable and puts its old value back at the end of the scope.
template <typename T>
class TGuardValue
{
public:
	TGuardValue(T& InVariable, const T& NewValue)
		: Variable(InVariable)
		, OldValue(InVariable)
	{
		Variable = NewValue;
	}

	~TGuardValue() { Variable = OldValue; }

	TGuardValue(const TGuardValue&) = delete;
	TGuardValue& operator=(const TGuardValue&) = delete;

private:
	T& Variable;
	T OldValue;
};
