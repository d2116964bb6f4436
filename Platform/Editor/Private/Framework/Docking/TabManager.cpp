// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Docking/TabManager.h"
#include "Widgets/Docking/SDockTab.h"

const TSharedRef<FGlobalTabmanager>& FGlobalTabmanager::Get()
{
	static const TSharedRef<FGlobalTabmanager> Manager = MakeShared<FGlobalTabmanager>();
	return Manager;
}

FTabSpawnerEntry& FGlobalTabmanager::RegisterNomadTabSpawner(const FName TabId, const FOnSpawnTab& OnSpawnTab)
{
	return *Spawners.Add(TabId, MakeShared<FTabSpawnerEntry>(TabId, OnSpawnTab));
}

bool FGlobalTabmanager::UnregisterNomadTabSpawner(const FName TabId)
{
	return Spawners.Remove(TabId) > 0;
}

TArray<TSharedRef<FTabSpawnerEntry>> FGlobalTabmanager::GetSpawners() const
{
	TArray<TSharedRef<FTabSpawnerEntry>> Result;
	for (const auto& [TabId, Spawner] : Spawners)
	{
		Result.Add(Spawner.ToSharedRef());
	}
	return Result;
}

TSharedPtr<SDockTab> FGlobalTabmanager::TryInvokeTab(const FTabId& TabId)
{
	if (!HasTabSpawner(TabId.TabType))
	{
		return nullptr;
	}
	const TSharedPtr<SDockTab> Existing = FindExistingLiveTab(TabId);
	if (Existing)
	{
		SetForegroundTab(Existing.ToSharedRef());
	}
	return Existing ? Existing : SpawnTab(TabId);
}

TSharedPtr<SDockTab> FGlobalTabmanager::SpawnTab(const FTabId& TabId)
{
	// Kept, since making the tab may register and unregister spawners.
	const TSharedPtr<FTabSpawnerEntry> Spawner = Spawners[TabId.TabType];
	if (!Spawner->OnSpawnTab.IsBound())
	{
		return nullptr;
	}
	const TSharedRef<SDockTab> Tab = Spawner->OnSpawnTab.Execute(FSpawnTabArgs(TabId));
	Tab->LayoutIdentifier = TabId;
	Tab->DefaultLabel = Spawner->GetDisplayName();
	OpenTabs.Add(Tab);
	OnTabOpened.Broadcast(Tab);
	SetForegroundTab(Tab);
	return Tab;
}

TSharedPtr<SDockTab> FGlobalTabmanager::FindExistingLiveTab(const FTabId& TabId) const
{
	const TSharedRef<SDockTab>* Found =
		OpenTabs.FindByPredicate([&TabId](const TSharedRef<SDockTab>& Tab) { return Tab->GetLayoutIdentifier() == TabId; });
	return Found ? TSharedPtr<SDockTab>(*Found) : nullptr;
}

void FGlobalTabmanager::SetForegroundTab(const TSharedRef<SDockTab>& Tab)
{
	check(OpenTabs.Contains(Tab));
	ForegroundTab = Tab;
	OnTabForegrounded.Broadcast(Tab);
}

bool FGlobalTabmanager::CloseTab(const TSharedRef<SDockTab>& Tab)
{
	// The caller's reference may be the one in the list.
	const TSharedRef<SDockTab> Closing = Tab;
	if (OpenTabs.Remove(Closing) == 0)
	{
		return false;
	}
	const bool bWasForeground = Closing->IsForeground();
	if (bWasForeground)
	{
		ForegroundTab.Reset();
	}
	OnTabClosed.Broadcast(Closing);
	Closing->OnTabClosed.ExecuteIfBound(Closing);
	if (bWasForeground && !OpenTabs.IsEmpty())
	{
		SetForegroundTab(OpenTabs.Last());
	}
	return true;
}
