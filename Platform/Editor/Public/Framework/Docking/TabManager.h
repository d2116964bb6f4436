// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Docking/TabSpawnerEntry.h"

class SDockTab;

DECLARE_MULTICAST_DELEGATE_OneParam(FOnTabEvent, const TSharedRef<SDockTab>&);

// Makes and keeps the open tabs. It shows nothing itself: the host's frame reads the list and listens to its events.
class FGlobalTabmanager : public TSharedFromThis<FGlobalTabmanager>
{
public:
	static const TSharedRef<FGlobalTabmanager>& Get();

	// Takes the place of an earlier spawner of that kind.
	FTabSpawnerEntry& RegisterNomadTabSpawner(const FName TabId, const FOnSpawnTab& OnSpawnTab);
	// False where there is none. Tabs that are open stay.
	bool UnregisterNomadTabSpawner(const FName TabId);
	bool HasTabSpawner(FName TabId) const { return Spawners.Contains(TabId); }
	// In the order of registration.
	TArray<TSharedRef<FTabSpawnerEntry>> GetSpawners() const;

	// Brings the open tab forward, else makes it. Null for a kind that nobody spawns.
	TSharedPtr<SDockTab> TryInvokeTab(const FTabId& TabId);

	// In the order of opening.
	const TArray<TSharedRef<SDockTab>>& GetOpenTabs() const { return OpenTabs; }
	TSharedPtr<SDockTab> FindExistingLiveTab(const FTabId& TabId) const;
	// Null where none is open.
	TSharedPtr<SDockTab> GetForegroundTab() const { return ForegroundTab.Pin(); }
	void SetForegroundTab(const TSharedRef<SDockTab>& Tab);

	// False where it is not open. The last opened of the others comes forward.
	bool CloseTab(const TSharedRef<SDockTab>& Tab);

	FOnTabEvent OnTabOpened;
	FOnTabEvent OnTabForegrounded;
	FOnTabEvent OnTabClosed;

private:
	TSharedPtr<SDockTab> SpawnTab(const FTabId& TabId);

	TMap<FName, TSharedPtr<FTabSpawnerEntry>> Spawners;
	TArray<TSharedRef<SDockTab>> OpenTabs;
	TWeakPtr<SDockTab> ForegroundTab;
};
