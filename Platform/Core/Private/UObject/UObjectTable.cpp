// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "UObjectTable.h"

FUObjectTable& FUObjectTable::Get()
{
	// Never destroyed: handles in other statics resolve through it.
	static FUObjectTable* const Table = new FUObjectTable();
	return *Table;
}

FObjectHandle FUObjectTable::Add(UObject* Object)
{
	const int32 Index = FreeSlots.IsEmpty() ? Slots.AddDefaulted() : FreeSlots.Pop();
	FSlot& Slot = Slots[Index];
	Slot.Object = Object;
	++Slot.SerialNumber;
	return {Index, Slot.SerialNumber};
}

void FUObjectTable::Free(FObjectHandle Handle)
{
	if (Resolve(Handle) == nullptr)
	{
		return;
	}
	Slots[Handle.Index].Object = nullptr;
	FreeSlots.Add(Handle.Index);
}

TArray<UObject*> FUObjectTable::GetObjects() const
{
	TArray<UObject*> Objects;
	for (const FSlot& Slot : Slots)
	{
		if (Slot.Object)
		{
			Objects.Add(Slot.Object);
		}
	}
	return Objects;
}
