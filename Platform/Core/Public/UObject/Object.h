// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "UObject/NameTypes.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "UObject/ReferenceCollector.h"
#include "UObject/UObjectGlobals.h"

// Base of what the collector owns. Made by NewObject alone; one on the stack or by plain new stops.
class UObject
{
public:
	UObject();
	virtual ~UObject();
	UObject(const UObject&) = delete;
	UObject& operator=(const UObject&) = delete;

	FName GetFName() const { return Name; }
	FString GetName() const { return Name.ToString(); }
	UObject* GetOuter() const { return Outer.Get(); }

	void SetFlags(EObjectFlags NewFlags) { Flags |= NewFlags; }
	void ClearFlags(EObjectFlags OldFlags) { Flags &= ~OldFlags; }
	bool HasAnyFlags(EObjectFlags FlagsToCheck) const { return (Flags & FlagsToCheck) != RF_NoFlags; }

	// Not valid any more from now on, and destroyed by the next collection whoever refers to it. Not for an object of the root set.
	void MarkAsGarbage();

	void AddToRoot() { bRooted = true; }
	void RemoveFromRoot() { bRooted = false; }
	bool IsRooted() const { return bRooted; }

	// Reports each object that this one keeps.
	virtual void AddReferencedObjects(FReferenceCollector& Collector) {}

private:
	friend struct FObjectHandle;
	friend class FGarbageCollector;
	friend bool IsValid(const UObject* Object);

	FName Name;
	TObjectPtr<UObject> Outer;
	FObjectHandle Self;
	EObjectFlags Flags = RF_NoFlags;
	bool bGarbage = false;
	bool bRooted = false;
};
