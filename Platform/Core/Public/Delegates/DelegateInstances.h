// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Delegates/IDelegateInstance.h"
#include "Templates/SharedPointer.h"
#include "UObject/WeakObjectPtr.h"
#include <functional>
#include <tuple>

// How a binding reaches its object: not at all, raw, weakly through a shared pointer, or weakly through an object slot.

struct FNoDelegateObject
{
	struct FPinned
	{
	};

	FPinned Pin() const { return {}; }
	bool IsAlive() const { return true; }
	const void* GetAddress() const { return nullptr; }
};

template <class UserClass>
struct TRawDelegateObject
{
	UserClass* Object;

	UserClass* Pin() const { return Object; }
	bool IsAlive() const { return true; }
	const void* GetAddress() const { return Object; }
};

template <class UserClass>
struct TSharedDelegateObject
{
	explicit TSharedDelegateObject(const TSharedRef<UserClass>& InObject)
		: Object(InObject)
		, Address(&InObject.Get())
	{
	}

	// Kept for the whole call, so an object may lose its last owner in its own handler.
	TSharedPtr<UserClass> Pin() const { return Object.Pin(); }
	bool IsAlive() const { return Object.IsValid(); }
	// Outlives the object, so that its bindings can still be removed.
	const void* GetAddress() const { return Address; }

	TWeakPtr<UserClass> Object;
	const void* Address;
};

template <class UserClass>
struct TUObjectDelegateObject
{
	TWeakObjectPtr<UserClass> Object;
	const void* Address;

	UserClass* Pin() const { return Object.Get(); }
	bool IsAlive() const { return Object.IsValid(); }
	const void* GetAddress() const { return Address; }
};

template <typename HolderType, typename CallableType, typename PayloadType, typename Ret, typename... ParamTypes>
class TDelegateInstance final : public IDelegateInstance<Ret, ParamTypes...>
{
public:
	TDelegateInstance(HolderType InHolder, CallableType InCallable, PayloadType InPayload)
		: Holder(::MoveTemp(InHolder))
		, Callable(::MoveTemp(InCallable))
		, Payload(::MoveTemp(InPayload))
	{
	}

	bool IsSafeToExecute() const override { return Holder.IsAlive(); }
	const void* GetUserObject() const override { return Holder.GetAddress(); }

	Ret Execute(ParamTypes... Params) const override
	{
		const auto Pinned = Holder.Pin();
		return std::apply(
			[&](auto&... Extra) -> Ret
			{
				if constexpr (std::is_member_function_pointer_v<CallableType>)
				{
					return ((*Pinned).*Callable)(::Forward<ParamTypes>(Params)..., Extra...);
				}
				else
				{
					return Callable(::Forward<ParamTypes>(Params)..., Extra...);
				}
			},
			Payload);
	}

private:
	HolderType Holder;
	// A lambda may change what it captured.
	mutable CallableType Callable;
	mutable PayloadType Payload;
};
