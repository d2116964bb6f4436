// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "UObject/NameTypes.h"
#include "UObject/ObjectMacros.h"

class UObject;
class UPackage;

// The outer of objects that belong to no package; in the root set.
UPackage* GetTransientPackage();
UObject* GetTransientPackageAsObject();

// What the constructor of the object that is being made takes over.
class FObjectConstruction
{
public:
	FObjectConstruction(UObject* InOuter, FName InName, EObjectFlags InFlags);
	~FObjectConstruction();
	FObjectConstruction(const FObjectConstruction&) = delete;
	FObjectConstruction& operator=(const FObjectConstruction&) = delete;

	// Stops where no NewObject is under way.
	static FObjectConstruction* Take();

	UObject* Outer;
	FName Name;
	EObjectFlags Flags;
};

// An unnamed object gets a name of its own. The outer is kept as long as the object is.
template <class T>
T* NewObject(UObject* Outer = GetTransientPackageAsObject(), FName Name = NAME_None, EObjectFlags Flags = RF_NoFlags)
{
	const FObjectConstruction Initializer(Outer, Name, Flags);
	return new T();
}

// False for null and for an object marked as garbage. A plain pointer to a collected object must not be passed.
bool IsValid(const UObject* Object);

// Destroys what neither the root set nor an object with one of these flags reaches. Runs between events only: plain pointers on the stack
// do not keep anything.
void CollectGarbage(EObjectFlags KeepFlags = GARBAGE_COLLECTION_KEEPFLAGS);
