// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Misc/AssertionMacros.h"
#include "Templates/UnrealTemplate.h"
#include <functional>
#include <memory>

template <typename FuncType>
class TFunction;

// A callable that is held by value and may be empty. Calling an empty one stops.
template <typename Ret, typename... ParamTypes>
class TFunction<Ret(ParamTypes...)>
{
public:
	TFunction() = default;
	TFunction(std::nullptr_t) {}

	template <typename FunctorType>
	requires(!std::is_same_v<std::decay_t<FunctorType>, TFunction> && std::is_invocable_r_v<Ret, FunctorType&, ParamTypes...>)
		TFunction(FunctorType&& InFunc)
		: Function(::Forward<FunctorType>(InFunc))
	{
	}

	Ret operator()(ParamTypes... Params) const
	{
		check(IsSet());
		return Function(::Forward<ParamTypes>(Params)...);
	}

	bool IsSet() const { return static_cast<bool>(Function); }
	explicit operator bool() const { return IsSet(); }
	void Reset() { Function = nullptr; }

private:
	std::function<Ret(ParamTypes...)> Function;
};

template <typename FuncType>
class TFunctionRef;

// A callable of the caller's, valid for the duration of the call it is passed to.
template <typename Ret, typename... ParamTypes>
class TFunctionRef<Ret(ParamTypes...)>
{
public:
	template <typename FunctorType>
	requires(!std::is_same_v<std::remove_cvref_t<FunctorType>, TFunctionRef> && std::is_invocable_r_v<Ret, FunctorType&, ParamTypes...>)
		TFunctionRef(FunctorType&& InFunc)
		: Functor(const_cast<void*>(static_cast<const void*>(std::addressof(InFunc))))
		, Caller([](void* Target, ParamTypes... Params) -> Ret
			  { return std::invoke(*static_cast<std::remove_reference_t<FunctorType>*>(Target), ::Forward<ParamTypes>(Params)...); })
	{
	}

	Ret operator()(ParamTypes... Params) const { return Caller(Functor, ::Forward<ParamTypes>(Params)...); }

private:
	void* Functor;
	Ret (*Caller)(void*, ParamTypes...);
};
