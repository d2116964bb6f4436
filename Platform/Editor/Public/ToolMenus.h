// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "ToolMenu.h"
#include "ToolMenuOwner.h"

// The menus of the editor. The host's frame draws them from this list.
class UToolMenus : public UObject
{
public:
	// The host brings the menu system up, once. Callbacks run also in a host that has no menus, where Get answers null.
	static void Startup(bool bHasMenus = true);
	static void Shutdown();

	// Null before Startup and where there are no menus.
	static UToolMenus* Get();

	// Runs once the menu system is up: at once if it already is.
	static void RegisterStartupCallback(const FSimpleMulticastDelegate::FDelegate& InDelegate);
	// Forgets the callbacks that are bound to this object and have not run yet.
	static void UnRegisterStartupCallback(const void* UserPointer);

	// Removes what this owner added.
	static void UnregisterOwner(const void* UserPointer);

	// Made if needed. Null for an empty path.
	UToolMenu* ExtendMenu(const FName Name);
	UToolMenu* FindMenu(const FName Name) const;
	// In the order of making.
	const TArray<TObjectPtr<UToolMenu>>& GetMenus() const { return Menus; }

	// Menus or entries have come or gone.
	FSimpleMulticastDelegate OnMenusChanged;

	void AddReferencedObjects(FReferenceCollector& Collector) override { Collector.AddReferencedObjects(Menus); }

private:
	TArray<TObjectPtr<UToolMenu>> Menus;
};
