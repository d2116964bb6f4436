// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Misc/AssertionMacros.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"
#include <memory>

template <class ObjectType>
class TSharedPtr;
template <class ObjectType>
class TSharedRef;
template <class ObjectType>
class TWeakPtr;
template <class ObjectType>
class TSharedFromThis;

template <class From, class To>
concept CPointerConvertible = std::is_convertible_v<From*, To*>;

// What MakeShareable hands over: a new object that the first shared pointer takes.
template <class ObjectType>
struct TRawPtrProxy
{
	std::shared_ptr<ObjectType> Object;
};

// A shared owner that is never null: making one of null stops.
template <class ObjectType>
class TSharedRef
{
public:
	using ElementType = ObjectType;

	template <CPointerConvertible<ObjectType> OtherType>
	explicit TSharedRef(OtherType* InObject)
		: TSharedRef(std::shared_ptr<ObjectType>(InObject))
	{
	}

	template <CPointerConvertible<ObjectType> OtherType>
	TSharedRef(TRawPtrProxy<OtherType> Proxy)
		: TSharedRef(std::shared_ptr<ObjectType>(::MoveTemp(Proxy.Object)))
	{
	}

	template <CPointerConvertible<ObjectType> OtherType>
	TSharedRef(const TSharedRef<OtherType>& Other)
		: Object(Other.Object)
	{
	}

	// There is no move, which would leave the source null.
	TSharedRef(const TSharedRef&) = default;
	TSharedRef& operator=(const TSharedRef&) = default;

	ObjectType& Get() const { return *Object; }
	ObjectType& operator*() const { return *Object; }
	ObjectType* operator->() const { return Object.get(); }
	int32 GetSharedReferenceCount() const { return static_cast<int32>(Object.use_count()); }

	template <class OtherType>
	friend bool operator==(const TSharedRef& Lhs, const TSharedRef<OtherType>& Rhs)
	{
		return Lhs.operator->() == Rhs.operator->();
	}

	friend uint32 GetTypeHash(const TSharedRef& Ref) { return ::GetTypeHash(Ref.operator->()); }

private:
	explicit TSharedRef(std::shared_ptr<ObjectType> InObject)
		: Object(::MoveTemp(InObject))
	{
		CheckNotNull(Object.get());
	}

	static void CheckNotNull(const void* InObject) { check(InObject != nullptr); }

	std::shared_ptr<ObjectType> Object;

	template <class OtherType>
	friend class TSharedRef;
	template <class OtherType>
	friend class TSharedPtr;
	template <class OtherType>
	friend class TWeakPtr;
	template <class To, class From>
	friend TSharedRef<To> StaticCastSharedRef(const TSharedRef<From>& Ref);
	template <class To, class From>
	friend TSharedRef<To> ConstCastSharedRef(const TSharedRef<From>& Ref);
};

// A shared owner that may be empty; reaching through an empty one stops.
template <class ObjectType>
class TSharedPtr
{
public:
	using ElementType = ObjectType;

	TSharedPtr() = default;
	TSharedPtr(std::nullptr_t) {}

	template <CPointerConvertible<ObjectType> OtherType>
	explicit TSharedPtr(OtherType* InObject)
		: Object(InObject)
	{
	}

	template <CPointerConvertible<ObjectType> OtherType>
	TSharedPtr(TRawPtrProxy<OtherType> Proxy)
		: Object(::MoveTemp(Proxy.Object))
	{
	}

	template <CPointerConvertible<ObjectType> OtherType>
	TSharedPtr(const TSharedPtr<OtherType>& Other)
		: Object(Other.Object)
	{
	}

	template <CPointerConvertible<ObjectType> OtherType>
	TSharedPtr(TSharedPtr<OtherType>&& Other)
		: Object(::MoveTemp(Other.Object))
	{
	}

	template <CPointerConvertible<ObjectType> OtherType>
	TSharedPtr(const TSharedRef<OtherType>& Ref)
		: Object(Ref.Object)
	{
	}

	bool IsValid() const { return Object != nullptr; }
	explicit operator bool() const { return IsValid(); }
	ObjectType* Get() const { return Object.get(); }

	std::add_lvalue_reference_t<ObjectType> operator*() const
	{
		check(IsValid());
		return *Object;
	}

	ObjectType* operator->() const
	{
		check(IsValid());
		return Object.get();
	}

	TSharedRef<ObjectType> ToSharedRef() const
	{
		check(IsValid());
		return TSharedRef<ObjectType>(Object);
	}

	void Reset() { Object.reset(); }
	int32 GetSharedReferenceCount() const { return static_cast<int32>(Object.use_count()); }

	template <class OtherType>
	friend bool operator==(const TSharedPtr& Lhs, const TSharedPtr<OtherType>& Rhs)
	{
		return Lhs.Get() == Rhs.Get();
	}

	template <class OtherType>
	friend bool operator==(const TSharedPtr& Lhs, const TSharedRef<OtherType>& Rhs)
	{
		return Lhs.Get() == Rhs.operator->();
	}

	friend bool operator==(const TSharedPtr& Lhs, std::nullptr_t) { return !Lhs.IsValid(); }
	friend uint32 GetTypeHash(const TSharedPtr& Ptr) { return ::GetTypeHash(Ptr.Get()); }

private:
	explicit TSharedPtr(std::shared_ptr<ObjectType> InObject)
		: Object(::MoveTemp(InObject))
	{
	}

	std::shared_ptr<ObjectType> Object;

	template <class OtherType>
	friend class TSharedPtr;
	template <class OtherType>
	friend class TWeakPtr;
	template <class To, class From>
	friend TSharedPtr<To> StaticCastSharedPtr(const TSharedPtr<From>& Ptr);
};

// Watches an object without owning it.
template <class ObjectType>
class TWeakPtr
{
public:
	using ElementType = ObjectType;

	TWeakPtr() = default;
	TWeakPtr(std::nullptr_t) {}

	template <CPointerConvertible<ObjectType> OtherType>
	TWeakPtr(const TSharedPtr<OtherType>& Ptr)
		: Object(Ptr.Object)
	{
	}

	template <CPointerConvertible<ObjectType> OtherType>
	TWeakPtr(const TSharedRef<OtherType>& Ref)
		: Object(Ref.Object)
	{
	}

	template <CPointerConvertible<ObjectType> OtherType>
	TWeakPtr(const TWeakPtr<OtherType>& Other)
		: Object(Other.Object)
	{
	}

	TSharedPtr<ObjectType> Pin() const { return TSharedPtr<ObjectType>(Object.lock()); }
	bool IsValid() const { return !Object.expired(); }
	void Reset() { Object.reset(); }
	bool HasSameObject(const void* Other) const { return Pin().Get() == Other; }

	template <class OtherType>
	friend bool operator==(const TWeakPtr& Lhs, const TWeakPtr<OtherType>& Rhs)
	{
		return Lhs.Pin().Get() == Rhs.Pin().Get();
	}

	template <class OtherType>
	friend bool operator==(const TWeakPtr& Lhs, const TSharedPtr<OtherType>& Rhs)
	{
		return Lhs.Pin().Get() == Rhs.Get();
	}

	template <class OtherType>
	friend bool operator==(const TWeakPtr& Lhs, const TSharedRef<OtherType>& Rhs)
	{
		return Lhs.Pin().Get() == Rhs.operator->();
	}

private:
	std::weak_ptr<ObjectType> Object;

	template <class OtherType>
	friend class TWeakPtr;
	template <class OtherType>
	friend class TSharedFromThis;
};

// Base of classes that hand out shared pointers to themselves. That works from the moment the first shared pointer holds the object, so
// not yet in its constructor.
template <class ObjectType>
class TSharedFromThis : public std::enable_shared_from_this<ObjectType>
{
public:
	TSharedRef<ObjectType> AsShared() { return AsWeak().Pin().ToSharedRef(); }
	TSharedRef<const ObjectType> AsShared() const { return AsWeak().Pin().ToSharedRef(); }

	TWeakPtr<ObjectType> AsWeak()
	{
		TWeakPtr<ObjectType> Result;
		Result.Object = this->weak_from_this();
		return Result;
	}

	TWeakPtr<const ObjectType> AsWeak() const
	{
		TWeakPtr<const ObjectType> Result;
		Result.Object = this->weak_from_this();
		return Result;
	}

protected:
	template <class OtherType>
	static TSharedRef<OtherType> SharedThis(OtherType* ThisPtr)
	{
		return StaticCastSharedRef<OtherType>(ThisPtr->AsShared());
	}
};

template <class To, class From>
TSharedRef<To> StaticCastSharedRef(const TSharedRef<From>& Ref)
{
	return TSharedRef<To>(std::static_pointer_cast<To>(Ref.Object));
}

template <class To, class From>
TSharedPtr<To> StaticCastSharedPtr(const TSharedPtr<From>& Ptr)
{
	return TSharedPtr<To>(std::static_pointer_cast<To>(Ptr.Object));
}

template <class To, class From>
TSharedRef<To> ConstCastSharedRef(const TSharedRef<From>& Ref)
{
	return TSharedRef<To>(std::const_pointer_cast<To>(Ref.Object));
}

template <class ObjectType>
TRawPtrProxy<ObjectType> MakeShareable(ObjectType* InObject)
{
	return {std::shared_ptr<ObjectType>(InObject)};
}

template <class ObjectType, typename DeleterType>
TRawPtrProxy<ObjectType> MakeShareable(ObjectType* InObject, DeleterType&& Deleter)
{
	return {std::shared_ptr<ObjectType>(InObject, ::Forward<DeleterType>(Deleter))};
}

template <class ObjectType, typename... ArgTypes>
TSharedRef<ObjectType> MakeShared(ArgTypes&&... Args)
{
	return TRawPtrProxy<ObjectType>{std::make_shared<ObjectType>(::Forward<ArgTypes>(Args)...)};
}
