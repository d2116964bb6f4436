// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Docking/TabId.h"

class SDockTab;

namespace ETabSpawnerMenuType
{
enum Type
{
	Enabled,
	Disabled,
	// Not listed in the editor's own menu of windows.
	Hidden
};
}

class FSpawnTabArgs
{
public:
	explicit FSpawnTabArgs(const FTabId& InTabBeingSpawned)
		: TabIdBeingSpawned(InTabBeingSpawned)
	{
	}

	const FTabId& GetTabId() const { return TabIdBeingSpawned; }

private:
	FTabId TabIdBeingSpawned;
};

DECLARE_DELEGATE_RetVal_OneParam(TSharedRef<SDockTab>, FOnSpawnTab, const FSpawnTabArgs&);

// How tabs of one kind are made.
class FTabSpawnerEntry
{
public:
	FTabSpawnerEntry(const FName& InTabType, const FOnSpawnTab& InSpawnTabMethod)
		: TabType(InTabType)
		, OnSpawnTab(InSpawnTabMethod)
	{
	}

	FTabSpawnerEntry& SetDisplayName(const TAttribute<FText>& InDisplayName)
	{
		DisplayName = InDisplayName;
		return *this;
	}

	FTabSpawnerEntry& SetMenuType(const TAttribute<ETabSpawnerMenuType::Type>& InMenuType)
	{
		MenuType = InMenuType;
		return *this;
	}

	const FName& GetTabType() const { return TabType; }
	// The kind's name unless one was set.
	FText GetDisplayName() const { return DisplayName.IsSet() ? DisplayName.Get() : FText::FromName(TabType); }
	ETabSpawnerMenuType::Type GetMenuType() const { return MenuType.Get(); }

private:
	friend class FGlobalTabmanager;

	FName TabType;
	FOnSpawnTab OnSpawnTab;
	TAttribute<FText> DisplayName;
	TAttribute<ETabSpawnerMenuType::Type> MenuType = ETabSpawnerMenuType::Enabled;
};
