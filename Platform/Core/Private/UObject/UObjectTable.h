// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/Array.h"
#include "UObject/Object.h"

// All living objects. A slot that an object has left is taken again, with a new serial number.
class FUObjectTable
{
public:
	static FUObjectTable& Get();

	FObjectHandle Add(UObject* Object);
	// Does nothing for a handle that does not resolve.
	void Free(FObjectHandle Handle);

	UObject* Resolve(FObjectHandle Handle) const
	{
		const bool bCurrent = Slots.IsValidIndex(Handle.Index) && Slots[Handle.Index].SerialNumber == Handle.SerialNumber;
		return bCurrent ? Slots[Handle.Index].Object : nullptr;
	}

	TArray<UObject*> GetObjects() const;

private:
	struct FSlot
	{
		UObject* Object = nullptr;
		int32 SerialNumber = 0;
	};

	TArray<FSlot> Slots;
	TArray<int32> FreeSlots;
};
