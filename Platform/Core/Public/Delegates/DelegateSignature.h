// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Delegates/DelegateInstances.h"

template <typename Signature>
class TDelegate;

// At most one handler. Copies share the binding. Payload is stored by value and follows the parameters of each call.
template <typename Ret, typename... ParamTypes>
class TDelegate<Ret(ParamTypes...)>
{
	using FInstance = IDelegateInstance<Ret, ParamTypes...>;

	// The types are not deduced from the function, so an overloaded one is found by the delegate's signature.
	template <class UserClass, typename... VarTypes>
	using TMethod = std::type_identity_t<Ret (std::remove_const_t<UserClass>::*)(ParamTypes..., std::decay_t<VarTypes>...)>;
	template <class UserClass, typename... VarTypes>
	using TConstMethod = std::type_identity_t<Ret (std::remove_const_t<UserClass>::*)(ParamTypes..., std::decay_t<VarTypes>...) const>;
	template <typename... VarTypes>
	using TFunctionPtr = std::type_identity_t<Ret (*)(ParamTypes..., std::decay_t<VarTypes>...)>;

public:
	TDelegate() = default;
	TDelegate(std::nullptr_t) {}

	bool IsBound() const { return Instance && Instance->IsSafeToExecute(); }
	bool IsBoundToObject(const void* InUserObject) const { return IsBound() && InUserObject && Instance->GetUserObject() == InUserObject; }
	// Also the object that has gone since.
	const void* GetUserObject() const { return Instance ? Instance->GetUserObject() : nullptr; }
	FDelegateHandle GetHandle() const { return Handle; }
	void Unbind() { *this = TDelegate(); }

	Ret Execute(ParamTypes... Params) const
	{
		const std::shared_ptr<const FInstance> Running = Instance;
		checkf(Running && Running->IsSafeToExecute(), TEXT("A delegate was executed that is not bound"));
		return Running->Execute(::Forward<ParamTypes>(Params)...);
	}

	bool ExecuteIfBound(ParamTypes... Params) const requires std::is_void_v<Ret>
	{
		const std::shared_ptr<const FInstance> Running = Instance;
		const bool bBound = Running && Running->IsSafeToExecute();
		if (bBound)
		{
			Running->Execute(::Forward<ParamTypes>(Params)...);
		}
		return bBound;
	}

	template <typename... VarTypes>
	static TDelegate CreateStatic(TFunctionPtr<VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return Make(FNoDelegateObject(), InFunc, ::Forward<VarTypes>(Vars)...);
	}

	template <typename FunctorType, typename... VarTypes>
	static TDelegate CreateLambda(FunctorType&& InFunctor, VarTypes&&... Vars)
	{
		return Make(FNoDelegateObject(), std::decay_t<FunctorType>(::Forward<FunctorType>(InFunctor)), ::Forward<VarTypes>(Vars)...);
	}

	// The object must outlive the binding.
	template <class UserClass, typename... VarTypes>
	static TDelegate CreateRaw(UserClass* InObject, TMethod<UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return Make(TRawDelegateObject<UserClass>{InObject}, InFunc, ::Forward<VarTypes>(Vars)...);
	}

	template <class UserClass, typename... VarTypes>
	static TDelegate CreateRaw(UserClass* InObject, TConstMethod<UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return Make(TRawDelegateObject<UserClass>{InObject}, InFunc, ::Forward<VarTypes>(Vars)...);
	}

	// Holds the object weakly.
	template <class UserClass, typename... VarTypes>
	static TDelegate CreateSP(const TSharedRef<UserClass>& InObject, TMethod<UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return Make(TSharedDelegateObject<UserClass>(InObject), InFunc, ::Forward<VarTypes>(Vars)...);
	}

	template <class UserClass, typename... VarTypes>
	static TDelegate CreateSP(const TSharedRef<UserClass>& InObject, TConstMethod<UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return Make(TSharedDelegateObject<UserClass>(InObject), InFunc, ::Forward<VarTypes>(Vars)...);
	}

	template <class UserClass, typename... VarTypes>
	static TDelegate CreateSP(UserClass* InObject, TMethod<UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return CreateSP(SharedOf(InObject), InFunc, ::Forward<VarTypes>(Vars)...);
	}

	template <class UserClass, typename... VarTypes>
	static TDelegate CreateSP(UserClass* InObject, TConstMethod<UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return CreateSP(SharedOf(InObject), InFunc, ::Forward<VarTypes>(Vars)...);
	}

	// Holds the object weakly; also an object marked as garbage is skipped.
	template <class UserClass, typename... VarTypes>
	static TDelegate CreateUObject(UserClass* InObject, TMethod<UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return Make(TUObjectDelegateObject<UserClass>{InObject, InObject}, InFunc, ::Forward<VarTypes>(Vars)...);
	}

	template <class UserClass, typename... VarTypes>
	static TDelegate CreateUObject(UserClass* InObject, TConstMethod<UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return Make(TUObjectDelegateObject<UserClass>{InObject, InObject}, InFunc, ::Forward<VarTypes>(Vars)...);
	}

	template <class UserClass, typename FunctorType, typename... VarTypes>
	static TDelegate CreateWeakLambda(UserClass* InObject, FunctorType&& InFunctor, VarTypes&&... Vars)
	{
		return Make(TUObjectDelegateObject<UserClass>{InObject, InObject}, std::decay_t<FunctorType>(::Forward<FunctorType>(InFunctor)),
			::Forward<VarTypes>(Vars)...);
	}

	template <typename FunctorType, typename... VarTypes>
	void BindLambda(FunctorType&& InFunctor, VarTypes&&... Vars)
	{
		*this = CreateLambda(::Forward<FunctorType>(InFunctor), ::Forward<VarTypes>(Vars)...);
	}

	template <class UserClass, typename... VarTypes>
	void BindSP(UserClass* InObject, TMethod<UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		*this = CreateSP(InObject, InFunc, ::Forward<VarTypes>(Vars)...);
	}

	template <class UserClass, typename... VarTypes>
	void BindSP(UserClass* InObject, TConstMethod<UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		*this = CreateSP(InObject, InFunc, ::Forward<VarTypes>(Vars)...);
	}

	template <class UserClass, typename... VarTypes>
	void BindSP(const TSharedRef<UserClass>& InObject, TMethod<UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		*this = CreateSP(InObject, InFunc, ::Forward<VarTypes>(Vars)...);
	}

private:
	template <typename HolderType, typename CallableType, typename... VarTypes>
	static TDelegate Make(HolderType Holder, CallableType Callable, VarTypes&&... Vars)
	{
		using FPayload = std::tuple<std::decay_t<VarTypes>...>;
		using FMade = TDelegateInstance<HolderType, CallableType, FPayload, Ret, ParamTypes...>;
		TDelegate Result;
		Result.Instance = std::make_shared<FMade>(::MoveTemp(Holder), ::MoveTemp(Callable), FPayload(::Forward<VarTypes>(Vars)...));
		Result.Handle = FDelegateHandle(FDelegateHandle::GenerateNewHandle);
		return Result;
	}

	template <class UserClass>
	static TSharedRef<UserClass> SharedOf(UserClass* InObject)
	{
		return StaticCastSharedRef<UserClass>(InObject->AsShared());
	}

	std::shared_ptr<const FInstance> Instance;
	FDelegateHandle Handle;
};
