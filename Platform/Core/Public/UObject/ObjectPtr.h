// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Misc/AssertionMacros.h"
#include "Templates/TypeHash.h"
#include "UObject/ObjectHandle.h"

bool IsValid(const UObject* Object);

// A reference to an object that does not keep it: slot and serial number, so that a collected object no longer resolves. What must be kept
// is reported in AddReferencedObjects. An object marked as garbage still resolves.
template <class T>
class TObjectPtr
{
public:
	TObjectPtr() = default;
	TObjectPtr(std::nullptr_t) {}

	TObjectPtr(T* Object)
		: Handle(FObjectHandle::Of(Object))
	{
	}

	template <class U>
	requires(!std::is_same_v<U, T> && std::is_convertible_v<U*, T*>) TObjectPtr(const TObjectPtr<U>& Other)
		: Handle(Other.GetHandle())
	{
	}

	T* Get() const { return static_cast<T*>(Handle.Resolve()); }
	operator T*() const { return Get(); }
	explicit operator bool() const { return Handle.Resolve() != nullptr; }

	T* operator->() const
	{
		T* Object = Get();
		checkf(Object != nullptr, TEXT("A TObjectPtr was dereferenced that is null or whose object has been collected"));
		return Object;
	}

	T& operator*() const { return *operator->(); }

	FObjectHandle GetHandle() const { return Handle; }

	friend bool operator==(const TObjectPtr& Lhs, const TObjectPtr& Rhs) { return Lhs.Handle.Resolve() == Rhs.Handle.Resolve(); }
	template <class U>
	friend bool operator==(const TObjectPtr& Lhs, U* Rhs)
	{
		return Lhs.Get() == Rhs;
	}
	friend bool operator==(const TObjectPtr& Lhs, std::nullptr_t) { return Lhs.Handle.Resolve() == nullptr; }
	// Of the slot, so it stays the same when the object goes.
	friend uint32 GetTypeHash(const TObjectPtr& Ptr)
	{
		return HashCombine(::GetTypeHash(Ptr.Handle.Index), ::GetTypeHash(Ptr.Handle.SerialNumber));
	}

private:
	FObjectHandle Handle;
};

template <class T>
bool IsValid(const TObjectPtr<T>& Ptr)
{
	return IsValid(Ptr.GetHandle().Resolve());
}
