// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Widgets/InvalidateWidgetReason.h"

class SWidget;

/** A value of a widget that may be bound to a getter. Known to its widget while it is bound, so that frames read it. */
class FSlateAttributeBase
{
public:
	FSlateAttributeBase() = default;
	virtual ~FSlateAttributeBase();
	FSlateAttributeBase(const FSlateAttributeBase&) = delete;
	FSlateAttributeBase& operator=(const FSlateAttributeBase&) = delete;

	/** Reads the getter; tells what the widget must do again if the value changed. */
	virtual EInvalidateWidgetReason Update() = 0;

protected:
	void Register(SWidget& Owner, bool bBound);
	static void InvalidateOwner(SWidget& Owner, EInvalidateWidgetReason Reason);

private:
	SWidget* BoundOwner = nullptr;
};

template <typename ValueType>
bool AreSlateValuesEqual(const ValueType& A, const ValueType& B)
{
	return A == B;
}
inline bool AreSlateValuesEqual(const FText& A, const FText& B)
{
	return A.EqualTo(B);
}

/**
 * A member of a widget that follows a TAttribute. A plain value is stored; a bound one is read when first asked for, and from then on once
 * in every frame in which the widget is in view, before layout. A changed value invalidates the widget for InReason.
 */
template <typename ValueType, EInvalidateWidgetReason InReason>
class TSlateAttribute final : public FSlateAttributeBase
{
public:
	explicit TSlateAttribute(SWidget&, const ValueType& InValue = ValueType())
		: Value(InValue)
	{
	}

	/** An attribute that was never set changes nothing. */
	void Assign(SWidget& Owner, const TAttribute<ValueType>& InAttribute)
	{
		if (!InAttribute.IsSet())
		{
			return;
		}
		if (!InAttribute.IsBound())
		{
			Set(Owner, InAttribute.Get());
			return;
		}
		Getter = MakeUnique<TAttribute<ValueType>>(InAttribute);
		bRead = false;
		Register(Owner, true);
		InvalidateOwner(Owner, InReason);
	}

	void Set(SWidget& Owner, const ValueType& InValue)
	{
		Unbind(Owner);
		if (!AreSlateValuesEqual(Value, InValue))
		{
			Value = InValue;
			InvalidateOwner(Owner, InReason);
		}
	}

	const ValueType& Get() const
	{
		if (!bRead)
		{
			Value = Getter->Get();
			bRead = true;
		}
		return Value;
	}

	bool IsBound() const { return Getter.IsValid() && Getter->IsBound(); }

	virtual EInvalidateWidgetReason Update() override
	{
		ValueType NewValue = Getter->Get();
		const bool bChanged = !bRead || !AreSlateValuesEqual(Value, NewValue);
		Value = MoveTemp(NewValue);
		bRead = true;
		return bChanged ? InReason : EInvalidateWidgetReason::None;
	}

private:
	void Unbind(SWidget& Owner)
	{
		Getter.Reset();
		bRead = true;
		Register(Owner, false);
	}

	mutable ValueType Value;
	/** Few attributes are bound, so the others do not pay for it. */
	TUniquePtr<TAttribute<ValueType>> Getter;
	mutable bool bRead = true;
};
