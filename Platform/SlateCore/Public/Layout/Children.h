// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "SlotBase.h"

class SWidget;

/** The children of a widget, as anyone may walk them. */
class FChildren
{
public:
	virtual ~FChildren() = default;

	virtual int32 Num() const = 0;
	virtual TSharedRef<SWidget> GetChildAt(int32 Index) const = 0;
};

class FNoChildren final : public FChildren
{
public:
	static FNoChildren& Get();

	virtual int32 Num() const override { return 0; }
	virtual TSharedRef<SWidget> GetChildAt(int32 Index) const override;
};

/** Children in slots of one type, in order. Adding lays the owner out again; after removing it says so itself. */
template <typename SlotType>
class TPanelChildren final : public FChildren
{
public:
	explicit TPanelChildren(SWidget& InOwner)
		: Owner(InOwner)
	{
	}

	virtual int32 Num() const override { return Slots.Num(); }
	virtual TSharedRef<SWidget> GetChildAt(int32 Index) const override { return Slots[Index]->GetWidget(); }

	SlotType& operator[](int32 Index) { return *Slots[Index]; }
	const SlotType& operator[](int32 Index) const { return *Slots[Index]; }

	/** At the end where Index is INDEX_NONE. */
	SlotType& AddSlot(TUniquePtr<SlotType> Slot, int32 Index = INDEX_NONE)
	{
		const int32 At = Index == INDEX_NONE ? Slots.Num() : Index;
		SlotType& Added = *Slot;
		Slots.Insert(MoveTemp(Slot), At);
		Renumber(At);
		Added.SetOwner(Owner);
		return Added;
	}

	void RemoveAt(int32 Index)
	{
		TUniquePtr<SlotType> Removed = MoveTemp(Slots[Index]);
		Slots.RemoveAt(Index);
		Renumber(Index);
	}

	void Empty()
	{
		TArray<TUniquePtr<SlotType>> Removed = MoveTemp(Slots);
		Slots.Empty();
	}

	/** INDEX_NONE where the widget is no child of this. */
	int32 Find(const SWidget& Widget) const
	{
		for (int32 Index = 0; Index < Slots.Num(); ++Index)
		{
			if (&*Slots[Index]->GetWidget() == &Widget)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

private:
	void Renumber(int32 From)
	{
		for (int32 Index = From; Index < Slots.Num(); ++Index)
		{
			Slots[Index]->SetIndex(Index);
		}
	}

	SWidget& Owner;
	TArray<TUniquePtr<SlotType>> Slots;
};

/** Children without slots, for widgets that place them by rules of their own. */
class FSlotlessChildren final : public FChildren
{
public:
	explicit FSlotlessChildren(SWidget& InOwner)
		: Owner(InOwner)
	{
	}
	virtual ~FSlotlessChildren() override { Empty(); }

	virtual int32 Num() const override { return Widgets.Num(); }
	virtual TSharedRef<SWidget> GetChildAt(int32 Index) const override { return Widgets[Index]; }

	void Add(const TSharedRef<SWidget>& Child);
	void Empty();

private:
	SWidget& Owner;
	TArray<TSharedRef<SWidget>> Widgets;
};
