// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "UObject/ObjectHandle.h"
#include <type_traits>

bool IsValid(const UObject* Object);

// Null as soon as the object is collected or marked as garbage.
template <class T>
class TWeakObjectPtr
{
public:
	TWeakObjectPtr() = default;
	TWeakObjectPtr(std::nullptr_t) {}
	TWeakObjectPtr(T* Object)
		: Handle(FObjectHandle::Of(Object))
	{
	}

	T* Get() const
	{
		UObject* Object = Handle.Resolve();
		return ::IsValid(Object) ? static_cast<T*>(Object) : nullptr;
	}

	bool IsValid() const { return Get() != nullptr; }
	explicit operator bool() const { return IsValid(); }
	T* operator->() const { return Get(); }
	T& operator*() const { return *Get(); }
	void Reset() { Handle = FObjectHandle(); }

	friend bool operator==(const TWeakObjectPtr& Lhs, const TWeakObjectPtr& Rhs) { return Lhs.Get() == Rhs.Get(); }

private:
	FObjectHandle Handle;
};
