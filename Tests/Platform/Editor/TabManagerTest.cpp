// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Docking/TabManager.h"
#include "Support/Printers.h"
#include "Widgets/Docking/SDockTab.h"

#include <gtest/gtest.h>

class TabManagerTest : public testing::Test
{
protected:
	TabManagerTest()
	{
		Register("A");
		Register("B");
	}

	~TabManagerTest() override
	{
		while (!GetManager().GetOpenTabs().IsEmpty())
		{
			GetManager().CloseTab(GetManager().GetOpenTabs().Last());
		}
		GetManager().UnregisterNomadTabSpawner("A");
		GetManager().UnregisterNomadTabSpawner("B");
	}

	static FGlobalTabmanager& GetManager() { return *FGlobalTabmanager::Get(); }
	static TSharedPtr<SDockTab> Invoke(const FName& Name) { return GetManager().TryInvokeTab(FTabId(Name)); }

	void Register(const FName& Name) { GetManager().RegisterNomadTabSpawner(Name, FOnSpawnTab::CreateRaw(this, &TabManagerTest::Spawn)); }

	TSharedRef<SDockTab> Spawn(const FSpawnTabArgs& Args)
	{
		Spawned.Add(Args.GetTabId().TabType);
		return SNew(SDockTab).TabRole(ETabRole::NomadTab);
	}

	TArray<FName> Spawned;
};

TEST_F(TabManagerTest, SpawnsATabOnceAndBringsItForwardAfterwards)
{
	const TSharedPtr<SDockTab> A = Invoke("A");
	ASSERT_TRUE(A);
	EXPECT_EQ(A->GetLayoutIdentifier(), FTabId("A"));
	const TSharedPtr<SDockTab> B = Invoke("B");
	EXPECT_FALSE(A->IsForeground());
	EXPECT_EQ(Invoke("A"), A);
	EXPECT_TRUE(A->IsForeground());
	EXPECT_EQ(Spawned, (TArray<FName>{"A", "B"}));
	EXPECT_EQ(GetManager().GetOpenTabs(), (TArray<TSharedRef<SDockTab>>{A.ToSharedRef(), B.ToSharedRef()}));
	A->RequestCloseTab();
	EXPECT_TRUE(B->IsForeground()) << "another comes forward";
}

TEST_F(TabManagerTest, AnOpenTabOutlivesItsSpawner)
{
	const TSharedPtr<SDockTab> A = Invoke("A");
	EXPECT_TRUE(GetManager().UnregisterNomadTabSpawner("A"));
	EXPECT_FALSE(GetManager().UnregisterNomadTabSpawner("A"));
	EXPECT_TRUE(A->IsForeground());
	EXPECT_TRUE(A->RequestCloseTab());
	EXPECT_FALSE(Invoke("A"));
	GetManager().RegisterNomadTabSpawner("A", FOnSpawnTab());
	EXPECT_FALSE(Invoke("A"));
}

TEST_F(TabManagerTest, SpawnsAnewAfterClosing)
{
	const TSharedPtr<SDockTab> First = Invoke("A");
	FString Log;
	First->SetOnTabClosed(FOnTabClosedCallback::CreateLambda([&](TSharedRef<SDockTab>) { Log += TEXT("tab "); }));
	const FDelegateHandle Handle = GetManager().OnTabClosed.AddLambda([&](const TSharedRef<SDockTab>&) { Log += TEXT("manager "); });
	EXPECT_TRUE(First->RequestCloseTab());
	EXPECT_FALSE(First->RequestCloseTab());
	EXPECT_TEXT(Log, TEXT("manager tab "));
	EXPECT_FALSE(GetManager().GetForegroundTab());
	EXPECT_NE(Invoke("A"), First);
	GetManager().OnTabClosed.Remove(Handle);
}
