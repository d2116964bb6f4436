// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Docking/TabManager.h"
#include "Support/Printers.h"
#include "Widgets/Docking/SDockTab.h"

#include <gtest/gtest.h>

// One tab, opened, brought forward and closed, is shown by the module's tests; here are several, and what hears of them.

class TabManagerTest : public testing::Test
{
protected:
	TabManagerTest()
	{
		const auto Spawn = [](const FSpawnTabArgs&)
		{
			return TSharedRef<SDockTab>(SNew(SDockTab).TabRole(ETabRole::NomadTab));
		};
		GetManager().RegisterNomadTabSpawner("A", FOnSpawnTab::CreateLambda(Spawn));
		GetManager().RegisterNomadTabSpawner("B", FOnSpawnTab::CreateLambda(Spawn));
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
};

TEST_F(TabManagerTest, OneOfSeveralIsInTheForegroundAndClosingIsTold)
{
	const TSharedPtr<SDockTab> A = Invoke("A");
	const TSharedPtr<SDockTab> B = Invoke("B");
	EXPECT_EQ(A->GetLayoutIdentifier(), FTabId("A"));
	EXPECT_FALSE(A->IsForeground());
	EXPECT_EQ(Invoke("A"), A);
	EXPECT_TRUE(A->IsForeground());
	EXPECT_EQ(GetManager().GetOpenTabs(), (TArray<TSharedRef<SDockTab>>{A.ToSharedRef(), B.ToSharedRef()}));

	FString Log;
	A->SetOnTabClosed(FOnTabClosedCallback::CreateLambda([&](TSharedRef<SDockTab>) { Log += TEXT("tab "); }));
	const FDelegateHandle Handle = GetManager().OnTabClosed.AddLambda([&](const TSharedRef<SDockTab>&) { Log += TEXT("manager "); });
	EXPECT_TRUE(A->RequestCloseTab());
	EXPECT_FALSE(A->RequestCloseTab());
	EXPECT_TEXT(Log, TEXT("manager tab "));
	EXPECT_TRUE(B->IsForeground());
	B->RequestCloseTab();
	EXPECT_FALSE(GetManager().GetForegroundTab());
	GetManager().OnTabClosed.Remove(Handle);
}

TEST_F(TabManagerTest, AnOpenTabOutlivesItsSpawner)
{
	const TSharedPtr<SDockTab> A = Invoke("A");
	EXPECT_TRUE(GetManager().UnregisterNomadTabSpawner("A"));
	EXPECT_FALSE(GetManager().UnregisterNomadTabSpawner("A"));
	EXPECT_TRUE(A->RequestCloseTab());
	GetManager().RegisterNomadTabSpawner("A", FOnSpawnTab());
	EXPECT_FALSE(Invoke("A"));
}
