// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Misc/AssertionMacros.h"
#include "Templates/UnrealTemplate.h"
#include <memory>

// The one owner of an object; reaching through an empty one stops.
template <class ObjectType>
class TUniquePtr
{
public:
	TUniquePtr() = default;
	TUniquePtr(std::nullptr_t) {}

	explicit TUniquePtr(ObjectType* InObject)
		: Object(InObject)
	{
	}

	template <class OtherType>
	requires std::is_convertible_v<OtherType*, ObjectType*> TUniquePtr(TUniquePtr<OtherType>&& Other)
		: Object(Other.Release())
	{
	}

	bool IsValid() const { return Object != nullptr; }
	explicit operator bool() const { return IsValid(); }
	ObjectType* Get() const { return Object.get(); }

	ObjectType& operator*() const
	{
		check(IsValid());
		return *Object;
	}

	ObjectType* operator->() const
	{
		check(IsValid());
		return Object.get();
	}

	ObjectType* Release() { return Object.release(); }
	void Reset(ObjectType* InObject = nullptr) { Object.reset(InObject); }

	friend bool operator==(const TUniquePtr& Lhs, std::nullptr_t) { return !Lhs.IsValid(); }

private:
	std::unique_ptr<ObjectType> Object;
};

template <class ObjectType, typename... ArgTypes>
TUniquePtr<ObjectType> MakeUnique(ArgTypes&&... Args)
{
	return TUniquePtr<ObjectType>(new ObjectType(::Forward<ArgTypes>(Args)...));
}
