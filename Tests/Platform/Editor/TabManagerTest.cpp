// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Docking/TabManager.h"
#include "Support/Printers.h"
#include "Widgets/Docking/SDockTab.h"

#include <gtest/gtest.h>

class TabManagerTest : public testing::Test
{
protected:
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

	FTabSpawnerEntry& Register(const FName& Name)
	{
		return GetManager().RegisterNomadTabSpawner(Name, FOnSpawnTab::CreateRaw(this, &TabManagerTest::Spawn));
	}

	// clang-format off
	TSharedRef<SDockTab> Spawn(const FSpawnTabArgs& Args)
	{
		Spawned.Add(Args.GetTabId().TabType);
		return SNew(SDockTab)
			.TabRole(ETabRole::NomadTab)
			[
				Content
			];
	}
	// clang-format on

	const TSharedRef<SWidget> Content = SNew(SDockTab);
	TArray<FName> Spawned;
};

TEST_F(TabManagerTest, SpawnsATabOnceAndBringsItForwardAfterwards)
{
	Register("A");
	Register("B");
	EXPECT_TRUE(Spawned.IsEmpty());
	const TSharedPtr<SDockTab> A = GetManager().TryInvokeTab(FTabId("A"));
	ASSERT_TRUE(A);
	EXPECT_EQ(A->GetContent(), Content);
	EXPECT_EQ(A->GetTabRole(), ETabRole::NomadTab);
	EXPECT_EQ(A->GetLayoutIdentifier(), FTabId("A"));
	EXPECT_TRUE(A->IsForeground());

	const TSharedPtr<SDockTab> B = GetManager().TryInvokeTab(FTabId("B"));
	EXPECT_FALSE(A->IsForeground());
	EXPECT_EQ(GetManager().TryInvokeTab(FTabId("A")), A);
	EXPECT_TRUE(A->IsForeground());
	EXPECT_EQ(Spawned, (TArray<FName>{"A", "B"}));
	EXPECT_EQ(GetManager().GetOpenTabs(), (TArray<TSharedRef<SDockTab>>{A.ToSharedRef(), B.ToSharedRef()}));
}

TEST_F(TabManagerTest, DoesNotKnowTabsThatNobodySpawns)
{
	EXPECT_FALSE(GetManager().TryInvokeTab(FTabId("A")));
	Register("A");
	EXPECT_TRUE(GetManager().HasTabSpawner("A"));
	EXPECT_TRUE(GetManager().UnregisterNomadTabSpawner("A"));
	EXPECT_FALSE(GetManager().UnregisterNomadTabSpawner("A"));
	EXPECT_FALSE(GetManager().TryInvokeTab(FTabId("A")));
	GetManager().RegisterNomadTabSpawner("A", FOnSpawnTab());
	EXPECT_FALSE(GetManager().TryInvokeTab(FTabId("A")));
}

TEST_F(TabManagerTest, SpawnsAnewAfterClosing)
{
	Register("A");
	const TSharedPtr<SDockTab> First = GetManager().TryInvokeTab(FTabId("A"));
	FString Log;
	First->SetOnTabClosed(
		FOnTabClosedCallback::CreateLambda([&](TSharedRef<SDockTab> Tab) { Log += Tab == First ? TEXT("tab ") : TEXT("?"); }));
	const FDelegateHandle Handle = GetManager().OnTabClosed.AddLambda([&](const TSharedRef<SDockTab>&) { Log += TEXT("manager "); });
	EXPECT_TRUE(First->RequestCloseTab());
	EXPECT_FALSE(First->RequestCloseTab());
	EXPECT_TEXT(Log, TEXT("manager tab "));
	EXPECT_FALSE(GetManager().GetForegroundTab());
	EXPECT_NE(GetManager().TryInvokeTab(FTabId("A")), First);
	EXPECT_EQ(Spawned.Num(), 2);
	GetManager().OnTabClosed.Remove(Handle);
}

TEST_F(TabManagerTest, ClosingTheForegroundTabBringsAnotherForward)
{
	Register("A");
	Register("B");
	const TSharedPtr<SDockTab> A = GetManager().TryInvokeTab(FTabId("A"));
	GetManager().TryInvokeTab(FTabId("B"))->RequestCloseTab();
	EXPECT_TRUE(A->IsForeground());
}

TEST_F(TabManagerTest, AnOpenTabOutlivesItsSpawner)
{
	Register("A");
	const TSharedPtr<SDockTab> Tab = GetManager().TryInvokeTab(FTabId("A"));
	GetManager().UnregisterNomadTabSpawner("A");
	EXPECT_TRUE(Tab->IsForeground());
	EXPECT_TRUE(Tab->RequestCloseTab());
}
