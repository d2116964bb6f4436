// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/Array.h"
#include "UObject/ObjectPtr.h"

// Given to AddReferencedObjects during a collection.
class FReferenceCollector
{
public:
	explicit FReferenceCollector(TArray<UObject*>& InReached)
		: Reached(InReached)
	{
	}

	template <class T>
	void AddReferencedObject(const TObjectPtr<T>& Object)
	{
		if (UObject* Resolved = Object.GetHandle().Resolve())
		{
			Reached.Add(Resolved);
		}
	}

	template <class T>
	void AddReferencedObjects(const TArray<TObjectPtr<T>>& Objects)
	{
		for (const TObjectPtr<T>& Object : Objects)
		{
			AddReferencedObject(Object);
		}
	}

private:
	TArray<UObject*>& Reached;
};
