// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Delegates/DelegateSignature.h"

// A value, or a getter that is called at every read.
template <typename ObjectType>
class TAttribute
{
public:
	using FGetter = TDelegate<ObjectType()>;

	TAttribute() = default;

	template <typename OtherType>
	requires(std::is_convertible_v<OtherType, ObjectType> && !std::is_same_v<std::decay_t<OtherType>, TAttribute>)
		TAttribute(OtherType&& InInitialValue)
		: Value(::Forward<OtherType>(InInitialValue))
		, bIsSet(true)
	{
	}

	static TAttribute Create(FGetter InGetter)
	{
		TAttribute Result;
		Result.Bind(::MoveTemp(InGetter));
		return Result;
	}

	template <typename FunctorType>
	static TAttribute CreateLambda(FunctorType&& InFunctor)
	{
		return Create(FGetter::CreateLambda(::Forward<FunctorType>(InFunctor)));
	}

	// Holds the object weakly; once it has gone, the last value read stands.
	template <class UserClass>
	static TAttribute CreateSP(UserClass* InObject, std::type_identity_t<ObjectType (std::remove_const_t<UserClass>::*)() const> InMethod)
	{
		return Create(FGetter::CreateSP(InObject, InMethod));
	}

	template <class UserClass>
	static TAttribute CreateRaw(UserClass* InObject, std::type_identity_t<ObjectType (std::remove_const_t<UserClass>::*)() const> InMethod)
	{
		return Create(FGetter::CreateRaw(InObject, InMethod));
	}

	static TAttribute CreateStatic(ObjectType (*InFunction)()) { return Create(FGetter::CreateStatic(InFunction)); }

	// The reference is to the stored value, which every read of a bound attribute refreshes.
	const ObjectType& Get() const
	{
		if (Getter.IsBound())
		{
			Value = Getter.Execute();
		}
		return Value;
	}

	const ObjectType& Get(const ObjectType& DefaultValue) const { return bIsSet ? Get() : DefaultValue; }

	template <typename OtherType>
	void Set(OtherType&& NewValue)
	{
		Value = ::Forward<OtherType>(NewValue);
		Getter.Unbind();
		bIsSet = true;
	}

	void Bind(FGetter InGetter)
	{
		bIsSet = true;
		Getter = ::MoveTemp(InGetter);
	}

	void Unbind() { Getter.Unbind(); }

	bool IsSet() const { return bIsSet; }
	bool IsBound() const { return Getter.IsBound(); }

private:
	mutable ObjectType Value{};
	FGetter Getter;
	bool bIsSet = false;
};
