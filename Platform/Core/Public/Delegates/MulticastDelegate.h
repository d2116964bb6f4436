// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/Array.h"
#include "Delegates/DelegateSignature.h"

template <typename Signature>
class TMulticastDelegate;

// Any number of handlers, which run in the reverse order of adding; nobody may rely on it. During a broadcast handlers may be added (they
// run from the next one on) and removed (they do not run any more), objects may die, and so may the delegate itself.
template <typename... ParamTypes>
class TMulticastDelegate<void(ParamTypes...)>
{
public:
	using FDelegate = TDelegate<void(ParamTypes...)>;

	TMulticastDelegate() = default;
	TMulticastDelegate(const TMulticastDelegate& Other)
		: List(std::make_shared<FList>(FList{Other.List->Handlers}))
	{
	}
	TMulticastDelegate& operator=(const TMulticastDelegate& Other)
	{
		const TArray<FDelegate> Handlers = Other.List->Handlers;
		Clear();
		List->Handlers.Append(Handlers);
		return *this;
	}
	~TMulticastDelegate() { Clear(); }

	FDelegateHandle Add(FDelegate&& InNewDelegate) { return AddDelegate(::MoveTemp(InNewDelegate)); }
	FDelegateHandle Add(const FDelegate& InNewDelegate) { return AddDelegate(InNewDelegate); }

	template <typename FunctorType, typename... VarTypes>
	FDelegateHandle AddLambda(FunctorType&& InFunctor, VarTypes&&... Vars)
	{
		return Add(FDelegate::CreateLambda(::Forward<FunctorType>(InFunctor), ::Forward<VarTypes>(Vars)...));
	}
	template <class UserClass, typename FunctorType, typename... VarTypes>
	FDelegateHandle AddWeakLambda(UserClass* InObject, FunctorType&& InFunctor, VarTypes&&... Vars)
	{
		return Add(FDelegate::CreateWeakLambda(InObject, ::Forward<FunctorType>(InFunctor), ::Forward<VarTypes>(Vars)...));
	}
	// Like the delegate's CreateRaw, CreateSP and CreateUObject.
	template <class UserClass, typename... VarTypes>
	FDelegateHandle AddRaw(
		UserClass* InObject, std::type_identity_t<void (UserClass::*)(ParamTypes..., std::decay_t<VarTypes>...)> InFunc, VarTypes&&... Vars)
	{
		return Add(FDelegate::CreateRaw(InObject, InFunc, ::Forward<VarTypes>(Vars)...));
	}
	template <class UserClass, typename... VarTypes>
	FDelegateHandle AddSP(
		UserClass* InObject, std::type_identity_t<void (UserClass::*)(ParamTypes..., std::decay_t<VarTypes>...)> InFunc, VarTypes&&... Vars)
	{
		return Add(FDelegate::CreateSP(InObject, InFunc, ::Forward<VarTypes>(Vars)...));
	}
	template <class UserClass, typename... VarTypes>
	FDelegateHandle AddSP(const TSharedRef<UserClass>& InObject,
		std::type_identity_t<void (UserClass::*)(ParamTypes..., std::decay_t<VarTypes>...)> InFunc, VarTypes&&... Vars)
	{
		return Add(FDelegate::CreateSP(InObject, InFunc, ::Forward<VarTypes>(Vars)...));
	}
	template <class UserClass, typename... VarTypes>
	FDelegateHandle AddUObject(
		UserClass* InObject, std::type_identity_t<void (UserClass::*)(ParamTypes..., std::decay_t<VarTypes>...)> InFunc, VarTypes&&... Vars)
	{
		return Add(FDelegate::CreateUObject(InObject, InFunc, ::Forward<VarTypes>(Vars)...));
	}

	bool Remove(FDelegateHandle Handle)
	{
		return Handle.IsValid() && RemoveIf([Handle](const FDelegate& Bound) { return Bound.GetHandle() == Handle; }) > 0;
	}

	// Removes what is bound to this object and returns the number of bindings removed.
	int32 RemoveAll(const void* InUserObject)
	{
		return InUserObject ? RemoveIf([InUserObject](const FDelegate& Bound) { return Bound.GetUserObject() == InUserObject; }) : 0;
	}

	void Clear()
	{
		RemoveIf([](const FDelegate&) { return true; });
	}

	bool IsBound() const
	{
		return List->Handlers.ContainsByPredicate([](const FDelegate& Bound) { return Bound.IsBound(); });
	}

	bool IsBoundToObject(const void* InUserObject) const
	{
		return List->Handlers.ContainsByPredicate([InUserObject](const FDelegate& Bound) { return Bound.IsBoundToObject(InUserObject); });
	}

	void Broadcast(ParamTypes... Params) const
	{
		const std::shared_ptr<FList> Running = List;
		++Running->NumBroadcasts;
		for (int32 Index = Running->Handlers.Num() - 1; Index >= 0; --Index)
		{
			// A copy, since adding a handler may move the list.
			const FDelegate Handler = Running->Handlers[Index];
			Handler.ExecuteIfBound(Params...);
		}
		if (--Running->NumBroadcasts == 0)
		{
			Running->Handlers.RemoveAll([](const FDelegate& Bound) { return !Bound.IsBound(); });
		}
	}

private:
	struct FList
	{
		TArray<FDelegate> Handlers;
		// While it is not zero, handlers that are removed leave an unbound entry, so that positions hold.
		int32 NumBroadcasts = 0;
	};

	FDelegateHandle AddDelegate(FDelegate Delegate)
	{
		if (!Delegate.GetHandle().IsValid())
		{
			return FDelegateHandle();
		}
		const FDelegateHandle Handle = Delegate.GetHandle();
		List->Handlers.Add(::MoveTemp(Delegate));
		return Handle;
	}

	template <typename PredicateType>
	int32 RemoveIf(const PredicateType& Predicate)
	{
		// The removed bindings die last: what a lambda captured may run code of its own when it goes.
		TArray<FDelegate> Removed;
		for (FDelegate& Bound : List->Handlers)
		{
			if (Bound.GetHandle().IsValid() && Predicate(Bound))
			{
				Removed.Add(::MoveTemp(Bound));
				Bound.Unbind();
			}
		}
		if (List->NumBroadcasts == 0)
		{
			List->Handlers.RemoveAll([](const FDelegate& Bound) { return !Bound.GetHandle().IsValid(); });
		}
		return Removed.Num();
	}

	std::shared_ptr<FList> List = std::make_shared<FList>();
};
