// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "UObject/Object.h"
#include "UObject/Package.h"
#include "UObjectTable.h"

static FObjectConstruction* CurrentConstruction = nullptr;

FObjectConstruction::FObjectConstruction(UObject* InOuter, FName InName, EObjectFlags InFlags)
	: Outer(InOuter)
	, Name(InName)
	, Flags(InFlags)
{
	check(CurrentConstruction == nullptr);
	CurrentConstruction = this;
}

FObjectConstruction::~FObjectConstruction()
{
	checkf(CurrentConstruction != this, TEXT("NewObject of a class that does not derive from UObject"));
}

FObjectConstruction* FObjectConstruction::Take()
{
	checkf(CurrentConstruction != nullptr, TEXT("Objects are made by NewObject alone"));
	return std::exchange(CurrentConstruction, nullptr);
}

static FName MakeUniqueObjectName()
{
	static int32 Number = 0;
	return FName(*FString::Printf(TEXT("Object_%d"), Number++));
}

UObject::UObject()
{
	const FObjectConstruction* Construction = FObjectConstruction::Take();
	Name = Construction->Name.IsNone() ? MakeUniqueObjectName() : Construction->Name;
	Flags = Construction->Flags;
	Self = FUObjectTable::Get().Add(this);
	Outer = Construction->Outer;
}

UObject::~UObject()
{
	FUObjectTable::Get().Free(Self);
}

void UObject::MarkAsGarbage()
{
	checkf(!bRooted, TEXT("An object of the root set can't become garbage: %s"), *GetName());
	bGarbage = true;
}

FObjectHandle FObjectHandle::Of(const UObject* Object)
{
	return Object ? Object->Self : FObjectHandle();
}

UObject* FObjectHandle::Resolve() const
{
	return FUObjectTable::Get().Resolve(*this);
}

bool IsValid(const UObject* Object)
{
	return Object != nullptr && !Object->bGarbage;
}

static UPackage* MakeTransientPackage()
{
	UPackage* Package = NewObject<UPackage>(nullptr, TEXT("/Engine/Transient"), RF_Transient);
	Package->AddToRoot();
	return Package;
}

UPackage* GetTransientPackage()
{
	static UPackage* const Package = MakeTransientPackage();
	return Package;
}

UObject* GetTransientPackageAsObject()
{
	return GetTransientPackage();
}
