// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Containers/Set.h"
#include "UObject/Object.h"
#include "UObject/Package.h"
#include "UObjectTable.h"

static bool bIsCollecting = false;

class FGarbageCollector
{
public:
	explicit FGarbageCollector(EObjectFlags InKeepFlags)
		: KeepFlags(InKeepFlags)
		, Objects(FUObjectTable::Get().GetObjects())
	{
	}

	void Run()
	{
		MarkReachable();
		Destroy(Objects.FilterByPredicate([this](UObject* Object) { return !Reachable.Contains(Object); }));
	}

private:
	void MarkReachable()
	{
		TArray<UObject*> Pending =
			Objects.FilterByPredicate([this](const UObject* Object) { return Object->IsRooted() || Object->HasAnyFlags(KeepFlags); });
		FReferenceCollector Collector(Pending);
		while (!Pending.IsEmpty())
		{
			UObject* Object = Pending.Pop();
			if (Object->bGarbage || Reachable.Contains(Object))
			{
				continue;
			}
			Reachable.Add(Object);
			Collector.AddReferencedObject(Object->Outer);
			Object->AddReferencedObjects(Collector);
		}
	}

	// All handles stop resolving before the first destructor runs, so none of them can reach into a destroyed object.
	static void Destroy(const TArray<UObject*>& Unreachable)
	{
		for (const UObject* Object : Unreachable)
		{
			FUObjectTable::Get().Free(Object->Self);
		}
		for (const UObject* Object : Unreachable)
		{
			delete Object;
		}
	}

	EObjectFlags KeepFlags;
	TArray<UObject*> Objects;
	TSet<const UObject*> Reachable;
};

void CollectGarbage(EObjectFlags KeepFlags)
{
	check(!bIsCollecting);
	const TGuardValue<bool> Guard(bIsCollecting, true);
	FGarbageCollector(KeepFlags).Run();
}
